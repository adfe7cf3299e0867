#include "ui/dialogs/work_dialog.h"

#include "host/long_work.h"
#include "ui/widgets/utf8.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <optional>

namespace trassix {

namespace {

using namespace std::chrono_literals;

constexpr TimeSlice::Clock::duration kSlice = 20ms;
constexpr TimeSlice::Clock::duration kPatience = 500ms;
constexpr int kGaugeRange = 1000;

/// Keeps a window from being closed as long as this lives, and closes it afterwards.
class ClosesLater {
 public:
  explicit ClosesLater(wxWindow& window) : window_(window) {
    window_.Bind(wxEVT_CLOSE_WINDOW, &ClosesLater::onClose, this);
  }
  ~ClosesLater() {
    window_.Unbind(wxEVT_CLOSE_WINDOW, &ClosesLater::onClose, this);
    if (wanted_)
      window_.CallAfter([&window = window_, force = force_] { window.Close(force); });
  }
  ClosesLater(const ClosesLater&) = delete;
  ClosesLater& operator=(const ClosesLater&) = delete;

  bool wanted() const { return wanted_; }

 private:
  void onClose(wxCloseEvent& event) {
    wanted_ = true;
    if (event.CanVeto())
      event.Veto();
    else
      force_ = true;
  }

  wxWindow& window_;
  bool wanted_ = false;
  bool force_ = false;
};

class WorkDialog : public wxDialog {
 public:
  WorkDialog(wxWindow* parent, const LongWork& work, const ClosesLater& closing)
      : wxDialog(parent, wxID_ANY, fromUtf8(work.title)), work_(work), closing_(closing) {
    auto* line = new wxStaticText(this, wxID_ANY, wxControl::EscapeMnemonics(fromUtf8(work.line)));
    gauge_ = new wxGauge(this, wxID_ANY, kGaugeRange, wxDefaultPosition, FromDIP(wxSize(340, -1)),
                         wxGA_HORIZONTAL | wxGA_SMOOTH, wxDefaultValidator, "progress");
    const int gap = FromDIP(10);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(line, wxSizerFlags().Border(wxALL, gap));
    sizer->Add(gauge_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, gap));
    sizer->Add(new wxButton(this, wxID_CANCEL), wxSizerFlags().Right().Border(wxALL, gap));
    SetSizerAndFit(sizer);
    CentreOnParent();
    Bind(wxEVT_IDLE, &WorkDialog::onIdle, this);
  }

  bool finish() {
    ShowModal();
    if (fault_)
      std::rethrow_exception(fault_);
    return done_;
  }

 private:
  void onIdle(wxIdleEvent&) {
    if (!IsModal())
      return;
    if (closing_.wanted())
      return EndModal(wxID_CANCEL);
    try {
      const std::optional<double> part = work_.step(TimeSlice(kSlice));
      done_ = !part;
      if (done_)
        return EndModal(wxID_OK);
      gauge_->SetValue(static_cast<int>(std::lround(std::clamp(*part, 0.0, 1.0) * kGaugeRange)));
    } catch (...) {
      fault_ = std::current_exception(); // for who asked for the work, once the box is gone
      return EndModal(wxID_CANCEL);
    }
    wxWakeUpIdle();
  }

  const LongWork& work_;
  const ClosesLater& closing_;
  wxGauge* gauge_;
  std::exception_ptr fault_;
  bool done_ = false;
};

} // namespace

bool finishWork(wxWindow& window, const LongWork& work) {
  const ClosesLater closing(window);
  for (const TimeSlice moment(kPatience); !moment.over() && !closing.wanted();) {
    if (!work.step(TimeSlice(kSlice)))
      return true;
    if (wxEventLoopBase* loop = wxEventLoopBase::GetActive())
      loop->YieldFor(wxEVT_CATEGORY_UI);
  }
  return !closing.wanted() && WorkDialog(&window, work, closing).finish();
}

} // namespace trassix
