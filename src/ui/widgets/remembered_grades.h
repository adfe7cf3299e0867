#pragma once

namespace trassix {

/// Whether grades are shown on the plan, from one run to the next.
bool rememberedGrades();
void rememberGrades(bool shown);

} // namespace trassix
