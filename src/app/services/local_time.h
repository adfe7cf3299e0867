#pragma once

#include <ctime>

namespace trassix {

/// The calendar time of the user's zone.
std::tm localTime(std::time_t when);

} // namespace trassix
