#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trassix {

/// A length in a text field of a dialog. The shown text is rounded, so that it counts as an entry
/// only once it differs from what was shown: the exact length stays where nobody typed.
class LengthEntry {
 public:
  /// `least` and `most` in mm, inclusive, for what is typed.
  LengthEntry(double mm, std::int32_t units, double least, double most);

  void enter(std::string_view text);

  const std::string& text() const { return text_; }
  double mm() const { return mm_; } ///< the last good one
  /// Why the text is refused, in one sentence; empty when it is good.
  const std::string& problem() const { return problem_; }

 private:
  double shownMm_;
  std::string shown_;
  std::int32_t units_;
  double least_;
  double most_;
  double mm_;
  std::string text_;
  std::string problem_;
};

} // namespace trassix
