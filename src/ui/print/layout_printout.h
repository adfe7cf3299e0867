#pragma once

#include "output/page_set.h"
#include "output/printer_corrections.h"

#include <wx/print.h>

#include <functional>
#include <memory>
#include <string>

namespace trassix {

/// A plan on the pages of a printer or a preview. They are laid out anew when the printer is known:
/// its paper, what of it the printer reaches, and how far it lies about lengths.
class LayoutPrintout : public wxPrintout {
 public:
  /// What is to be printed.
  struct Job {
    std::shared_ptr<const Layout> layout;
    PrintOptions options;
    PrintTitle title;
    Paper paper; ///< as set by the user, until the printer is known
    OwnedStock owned = {};
    std::vector<std::string> only = {}; ///< names of pages; empty for all of them
    /// Of the printer that was chosen in the meantime.
    std::function<PrinterCorrection()> correction = {};
    /// Told when the printer needs another number of pages than the set paper would.
    std::function<void(std::size_t before, std::size_t now)> recounted = {};
  };

  explicit LayoutPrintout(Job job);

  const PageSet& pages() const { return pages_; }

  void OnPreparePrinting() override;
  bool HasPage(int page) override;
  void GetPageInfo(int* first, int* last, int* from, int* to) override;
  bool OnPrintPage(int page) override;

 private:
  /// Paper and how it lies under the printer's pixels.
  struct Sheet {
    Paper paper;         ///< mm as they come out
    wxRect onDevice;     ///< the whole sheet
    double pxPerMmX = 1; ///< device pixels per mm as they come out
    double pxPerMmY = 1;
  };
  Sheet sheet();
  void layOut(const Paper& paper);

  Job job_;
  PrinterCorrection correction_;
  PageSet pages_;
};

} // namespace trassix
