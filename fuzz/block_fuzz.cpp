// Whatever the bytes are, reading them must end well, and a block that was read can be saved and
// read again.
#include "document/block.h"
#include "document/block_file.h"
#include "document/record_kinds.h"

#include <cstdlib>

namespace {

void require(bool condition) {
  if (!condition)
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace trassix;
  Block first;
  readBlock(std::string_view(reinterpret_cast<const char*>(data), size), first);
  if (isEmpty(first))
    return 0;
  std::string saved;
  const auto append = [&saved](std::string_view part) { saved += part; };
  require(writeBlock(first, append).empty());
  Block second;
  require(readBlock(saved, second).empty());
  require(second.content.pieces.size() == first.content.pieces.size());
  require(second.content.scenery.size() == first.content.scenery.size());

  centreBlock(second);
  saved.clear();
  require(writeBlock(second, append).empty());
  return 0;
}
