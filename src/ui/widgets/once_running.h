#pragma once

#include <functional>

namespace trassix {

/// Calls the function once the application's main event loop runs and nothing modal is open; of
/// several functions one after the other, in their order. What a start has to show goes through
/// here.
void onceRunning(std::function<void()> function);

} // namespace trassix
