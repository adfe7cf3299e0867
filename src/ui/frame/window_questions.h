#pragma once

#include "host/clipboard.h"
#include "host/questions.h"

#include <wx/gdicmn.h>

class wxFrame;

namespace trassix {

/// Questions as dialogs over the main window.
class WindowQuestions : public Questions {
 public:
  /// `onScreen` says where a point of the plan (mm) is shown.
  WindowQuestions(wxFrame& window, std::function<wxPoint(Point)> onScreen);

  void show(const Notice& notice) override;
  bool confirm(const Question& question) override;
  std::optional<std::size_t> choose(const Choice& choice) override;
  std::optional<std::string> askText(const std::string& title, const std::string& prompt,
                                     const std::string& value) override;
  void popupMenu(const std::vector<MenuRow>& rows) override;
  std::optional<ShapeAnswer> askShape(const Layout& layout, const Shape& shape) override;
  std::optional<HeightPlan> askHeights(Workspace& workspace) override;
  std::optional<HelixWish> askHelix(Workspace& workspace, const HelixWish& from,
                                    std::int32_t helix) override;
  bool finish(const LongWork& work) override;

 private:
  wxFrame& window_;
  std::function<wxPoint(Point)> onScreen_;
};

class SystemClipboard : public Clipboard {
 public:
  void put(const std::string& text) override;
  std::string text() override;
};

} // namespace trassix
