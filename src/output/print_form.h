// What a user wants to have printed, while the dialog is open.
#pragma once

#include "editing/canvas/surface.h"
#include "editing/canvas/view_transform.h"
#include "output/page_set.h"
#include "output/printer_corrections.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// Every entry lays the pages out at once; nothing is printed and the plan stays as it is.
class PrintForm {
 public:
  enum class Field : std::uint8_t { Scale, Overlap, MeasuredX, MeasuredY };
  static constexpr std::size_t kFields = 4;

  /// The layout must outlive the form and stay as it is. `correction` is that of the printer that
  /// the measures are for.
  PrintForm(const Layout& layout, const PrintOptions& options, const Paper& paper,
            const PrintTitle& title, const PrinterCorrection& correction,
            const OwnedStock& owned = {});

  const PrintOptions& options() const { return options_; }
  PrinterCorrection correction() const { return correction_; }
  const PageSet& pages() const { return pages_; }

  void setMode(PrintMode mode);
  void setOrientation(PrintOrientation orientation);
  void set(std::int64_t bit, bool on);
  void setSelectionOnly(bool only);
  void setLabels(bool labels);
  bool uses(Field field) const;
  void enter(Field field, std::string_view text);
  const std::string& text(Field field) const { return texts_[index(field)]; }

  /// Pages that are not to be printed this time. None is left out at first, and again when other
  /// pages came out.
  bool isLeftOut(std::size_t page) const { return leftOut_[page]; }
  bool anyLeftOut() const;
  void toggle(std::size_t page) { leftOut_[page] = !leftOut_[page]; }
  void leaveAllOut(bool out) { leftOut_.assign(leftOut_.size(), out); }
  /// Names of the pages to print; empty when all are.
  std::vector<std::string> only() const;

  /// Why it cannot be printed, empty when it can.
  std::string problem() const;
  /// How many pages of which size, and what the other orientation would take.
  std::string summary() const;
  bool ready() const { return problem().empty(); }

  /// Where decks are apart, the picture is that of the deck of this page.
  void show(std::size_t page) { shown_ = pages_.pages[page].plan; }
  /// The plan with the sheets over it, in a picture of this size.
  void paint(Surface& surface, SizePx size) const;
  /// The page of the tile at this place of the picture.
  std::optional<std::size_t> pageAt(Point px, SizePx size) const;

 private:
  static std::size_t index(Field field) { return static_cast<std::size_t>(field); }
  std::vector<std::string> names() const;
  void layOut();
  bool showsTile(const Page& page) const;
  ViewTransform viewIn(SizePx size) const;

  const Layout& layout_;
  PrintOptions options_;
  Paper paper_;
  PrintTitle title_;
  PrinterCorrection correction_;
  OwnedStock owned_;
  std::array<std::string, kFields> texts_;
  std::array<std::string, kFields> problems_;
  PageSet pages_;
  std::size_t turnedCount_ = 0; ///< of pages on paper that lies the other way
  std::vector<bool> leftOut_;   ///< by page
  std::size_t shown_ = 0;       ///< of the plans
};

} // namespace trassix
