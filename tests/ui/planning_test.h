#pragma once

#include "frame_test.h"
#include "support/plan.h"
#include "ui/palette/catalog_list.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace trassix::test {

/// Plans with real mouse and keys.
class PlanningTest : public FrameTest {
 protected:
  /// The middle of an entry of the palette, scrolled into view.
  Spot inPalette(const wxString& title, const char* listName = "pieces") {
    waitUntil("the palette lists something", [&] { return findNamed(listName) != nullptr; });
    auto* list = dynamic_cast<CatalogList*>(findNamed(listName));
    const auto& rows = list->rows();
    const auto row = static_cast<std::size_t>(
        std::find_if(rows.begin(), rows.end(),
                     [&](const CatalogRow& r) {
                       return r.title == title || r.detail.BeforeFirst(' ') == title;
                     }) -
        rows.begin());
    list->select(row, 1);
    wxRect rect;
    waitUntil("the palette shows " + title.ToStdString(), [&] {
      rect = list->GetItemRect(row);
      return !rect.IsEmpty();
    });
    return {*list, rect.GetPosition() + wxPoint(rect.width / 2, rect.height / 2)};
  }

  void show(const Plan& lines) {
    plan().edit() = lines.layout.content();
    plan().setNextPieceId(lines.layout.nextPieceId());
    plan().clearSelection();
    frame().workspace().changed();
  }

  /// Throws when they do not come, since nothing that follows makes sense then.
  void waitForPieces(std::size_t count) {
    if (!waitUntil(std::to_string(count) + " pieces", [&] { return pieces() == count; }))
      throw std::runtime_error("the plan has " + std::to_string(pieces()) + " pieces");
  }

  /// Goes on from the selected piece by Enter in the palette.
  void extendByEnter(const wxString& article, std::size_t times) {
    click(inPalette(article));
    for (std::size_t count = pieces(), i = 0; i < times; ++i) {
      pressKey(WXK_RETURN);
      waitForPieces(++count);
    }
  }
};

} // namespace trassix::test
