#include "panels/length_entry.h"

#include "measures/measure_format.h"
#include "measures/measure_input.h"

namespace trassix {

LengthEntry::LengthEntry(double mm, std::int32_t units, double least, double most)
    : shownMm_(mm), shown_(formatLength(mm, units)), units_(units), least_(least), most_(most),
      mm_(mm), text_(shown_) {}

void LengthEntry::enter(std::string_view text) {
  text_ = text;
  problem_.clear();
  if (text == shown_) {
    mm_ = shownMm_;
    return;
  }
  const NumberInput input = readLength(text, units_, least_, most_);
  problem_ = input.problem;
  if (input.good())
    mm_ = input.value;
}

} // namespace trassix
