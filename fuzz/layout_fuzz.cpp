// Whatever the bytes are, reading them must end well, and what was read must come through a save
// and a load unharmed.
#include "document/layout_reader.h"
#include "document/layout_writer.h"
#include "document/record_kinds.h"
#include "document/unread_part.h"

#include <cstdlib>

namespace {

void require(bool condition) {
  if (!condition)
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trassix;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Layout first;
  std::string name;
  readLayout(text, first, name);

  std::string saved;
  require(writeLayout(first, name, saved).empty());
  require(unreadPart(saved).empty());
  static_cast<void>(unreadPart(text));
  Layout second;
  std::string savedName;
  require(readLayout(saved, second, savedName).empty());
  require(second.pieces().size() == first.pieces().size());
  require(second.nextPieceId() == first.nextPieceId());

  // Texts may have grown by escaping, nothing else may differ: without them, the text is stable.
  if (saved.find('&') == std::string::npos) {
    std::string again;
    require(writeLayout(second, savedName, again).empty());
    require(again == saved);
  }
  return 0;
}
