#pragma once

#include <wx/panel.h>

#include <functional>
#include <vector>

class wxButton;
class wxToggleButton;

namespace trassix {

struct DockedPanel;

/// The panels that are docked at one side: a row of tabs, and below it the panel of the pressed
/// one.
class DockTabs : public wxPanel {
 public:
  /// `close` is called for the panel whose closing the user asks for.
  DockTabs(wxWindow* parent, std::function<void(const DockedPanel&)> close);

  /// Takes over a child of this window as the panel of a new tab, and brings it to the front.
  void add(const DockedPanel& panel, wxWindow* page);
  void remove(const DockedPanel& panel);
  void bringToFront(const DockedPanel& panel);
  /// The tab beside the one in front becomes the one in front, in a circle.
  void turn(int by);

  bool has(const DockedPanel& panel) const { return page(panel) != nullptr; }
  bool empty() const { return tabs_.empty(); }
  const DockedPanel* front() const { return front_; }
  /// Null when there is none.
  wxWindow* page(const DockedPanel& panel) const;

 private:
  struct Tab {
    const DockedPanel* panel;
    wxToggleButton* button;
    wxWindow* page;
  };

  const std::function<void(const DockedPanel&)> close_;
  std::vector<Tab> tabs_;
  const DockedPanel* front_ = nullptr;
  wxSizer* row_;
  wxButton* closeButton_;
};

} // namespace trassix
