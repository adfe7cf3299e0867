#pragma once

#include <string>
#include <string_view>

namespace trassix {

/// What of a layout file's text a load would pass over, so that saving the plan would lose it: a
/// text that is not a whole layout, a version above 1, elements and attributes that the format
/// lacks, and those that stand where `readLayout` does not look for them or takes others in their
/// place. Comments and texts between elements are nothing to lose. Names the first such part for a
/// sentence ("line 7, <bridge>"); empty when the text is understood whole.
std::string unreadPart(std::string_view text);

} // namespace trassix
