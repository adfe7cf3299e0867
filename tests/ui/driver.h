#pragma once

#include <wx/gdicmn.h>
#include <wx/kbdstate.h>
#include <wx/mousestate.h>
#include <wx/window.h>

#include <functional>
#include <string>
#include <vector>

namespace trassix::test {

/// Handles events until `condition` holds. After a generous time (20 s) it gives up, fails the test
/// with `what` ("the dialog is open") and gives false. Tests wait with this and never sleep.
bool waitUntil(const std::string& what, const std::function<bool()>& condition);

/// Handles what the input sent so far has caused.
void settle();

/// Where in a window: client coordinates, by default its middle.
struct Spot {
  wxWindow* window = nullptr;
  wxPoint client;

  Spot(wxWindow& inWindow);
  Spot(wxWindow& inWindow, wxPoint point) : window(&inWindow), client(point) {}
  wxPoint onScreen() const;
};

/// The middle of a window or of part of the screen.
inline wxPoint middleOf(const wxRect& rect) {
  return rect.GetPosition() + rect.GetSize() / 2;
}
inline wxPoint middleOf(const wxWindow& window) {
  return middleOf(window.GetScreenRect());
}

/// The real mouse. Moves go over several intermediate points, as a hand does.
void moveMouse(const Spot& to);
void click(const Spot& at);
void rightClick(const Spot& at);
void doubleClick(const Spot& at);
void pressMouse(const Spot& at, int button = wxMOUSE_BTN_LEFT);
void releaseMouse(int button = wxMOUSE_BTN_LEFT);
/// Presses, moves over `stops` and releases at the last of them.
void drag(const Spot& from, const std::vector<Spot>& stops, int button = wxMOUSE_BTN_LEFT);
/// Turns the wheel where the pointer is; positive notches turn away from the user.
void turnWheel(int notches);

/// The real keyboard, to whatever has the focus. Texts are plain ASCII.
void pressKey(int keyCode, int modifiers = wxMOD_NONE);
void holdKey(int keyCode);
void releaseKey(int keyCode);
void typeText(const std::string& text);

/// Looks through every open window. Null when there is none or it is not on the screen.
wxWindow* findNamed(const std::string& name);
wxWindow* findLabelled(const std::string& label);

} // namespace trassix::test
