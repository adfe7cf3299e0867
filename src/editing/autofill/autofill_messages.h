// What autofill says to the user.
#pragma once

#include "editing/autofill/autofill.h"

#include <string>

namespace trassix {

/// Why there is nothing to choose from, for the two pieces that were given to the solver; empty
/// when there is something.
std::optional<Notice> autofillNotice(const Layout& layout, std::int32_t a, std::int32_t b,
                                     const Autofill& result);

/// The line above the rows of the choice dialog.
std::string autofillPrompt(const Gap& gap);

/// One row of the choice dialog.
std::string autofillRow(GapKind kind, const FillCandidate& candidate);

/// What the fill of a row leaves open, for the line under the rows.
std::string autofillRest(const Rest& rest);

} // namespace trassix
