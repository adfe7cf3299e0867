// The measure for the start of the program: a frame of the same toolkit and size with nothing in
// it.
#include <wx/app.h>
#include <wx/frame.h>

class BareApp : public wxApp {
 public:
  bool OnInit() override {
    (new wxFrame(nullptr, wxID_ANY, "Bare frame", wxDefaultPosition, {1400, 900}))->Show();
    return true;
  }
};

wxIMPLEMENT_APP(BareApp);
