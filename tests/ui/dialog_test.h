#pragma once

#include "driver.h"
#include "frame_test.h"
#include "host/command_ids.h"
#include "ui/canvas/canvas_panel.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <cmath>

namespace trassix::test {

/// A test of a dialog about the plan, by real clicks and keys.
class DialogTest : public FrameTest {
 protected:
  Layout& plan() { return frame().layout(); }

  static wxWindow& in(wxDialog& dialog, const std::string& name) {
    wxWindow* window = wxWindow::FindWindowByName(name, &dialog);
    if (window == nullptr)
      throw std::runtime_error("there is no " + name);
    return *window;
  }
  /// Replaces what stands in a text field.
  static void enter(wxDialog& dialog, const std::string& name, const std::string& text) {
    auto& field = dynamic_cast<wxTextCtrl&>(in(dialog, name));
    click(field);
    waitUntil(name + " has the focus", [&] { return field.HasFocus(); });
    pressKey('A', wxMOD_CONTROL);
    if (text.empty())
      pressKey(WXK_DELETE);
    else
      typeText(text);
    waitUntil(text + " is in " + name, [&] { return field.GetValue() == text; });
  }
  static std::string problem(wxDialog& dialog) {
    wxString text = in(dialog, "problem").GetLabel();
    text.Replace("\n", " ");
    return text.utf8_string();
  }
  static bool enabled(wxDialog& dialog, int button) {
    return dialog.FindWindow(button)->IsEnabled();
  }

  Spot onPlan(Point world) {
    const Point px = frame().canvasPanel().canvas().view().toScreen(world);
    return {frame().canvasPanel(),
            wxPoint(static_cast<int>(std::lround(px.x)), static_cast<int>(std::lround(px.y)))};
  }
};

} // namespace trassix::test
