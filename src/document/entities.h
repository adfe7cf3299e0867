#pragma once

#include "document/block_file.h"
#include "document/layout.h"

#include <string>
#include <string_view>

namespace trassix {

/// The text with `&amp;` `&lt;` `&gt;` `&quot;` as the characters they stand for, in one pass:
/// `&amp;lt;` becomes `&lt;`. Anything else stays as it is.
std::string decodeEntities(std::string_view text);

/// Decodes every text that a plan has from its file. To be called once after each load, since the
/// reader leaves texts as they stand in the file while the writer escapes them: without it each
/// save would add a level of escaping.
void decodeTexts(Layout& layout, std::string& name);
void decodeTexts(Block& block);

} // namespace trassix
