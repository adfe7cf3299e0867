#include "ui/canvas/level_switcher.h"

#include "document/layout.h"
#include "ui/widgets/utf8.h"

#include <wx/colordlg.h>
#include <wx/colourdata.h>
#include <wx/dcbuffer.h>
#include <wx/graphics.h>
#include <wx/settings.h>

#include <algorithm>
#include <memory>
#include <numeric>

namespace trassix {

namespace {

// Device independent.
constexpr int kRow = 24;
constexpr int kIcon = 26;
constexpr int kMargin = 8;
constexpr int kWidestName = 150;

wxColour systemColour(wxSystemColour which) {
  return wxSystemSettings::GetColour(which);
}

void drawEye(wxGraphicsContext& context, const wxRect& cell, bool open, const wxColour& ink) {
  const double w = cell.width * 0.52;
  const double x = cell.x + (cell.width - w) / 2;
  const double y = cell.y + cell.height / 2.0;
  context.SetPen(wxPen(ink, 1));
  context.SetBrush(*wxTRANSPARENT_BRUSH);
  wxGraphicsPath lids = context.CreatePath();
  lids.MoveToPoint(x, y);
  lids.AddQuadCurveToPoint(x + w / 2, y - w * 0.62, x + w, y);
  lids.AddQuadCurveToPoint(x + w / 2, y + w * 0.62, x, y);
  context.StrokePath(lids);
  if (open) {
    context.SetBrush(wxBrush(ink));
    context.DrawEllipse(x + w * 0.32, y - w * 0.18, w * 0.36, w * 0.36);
  } else {
    context.StrokeLine(x + w * 0.1, y + w * 0.4, x + w * 0.9, y - w * 0.4);
  }
}

} // namespace

LevelSwitcher::LevelSwitcher(wxWindow* canvas, Workspace& workspace)
    : PlanObserver(workspace), workspace_(workspace) {
  // Not by the base's constructor: the canvas would take it for something that takes the focus.
  Create(canvas, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE, "levelSwitcher");
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetCursor(wxCURSOR_HAND);
  Bind(wxEVT_PAINT, &LevelSwitcher::onPaint, this);
  Bind(wxEVT_MOTION, &LevelSwitcher::onMotion, this);
  Bind(wxEVT_LEFT_DOWN, &LevelSwitcher::onClick, this);
  Bind(wxEVT_LEFT_DCLICK, &LevelSwitcher::onClick, this);
  Bind(wxEVT_MOUSEWHEEL, [this](wxMouseEvent& event) {
    if (event.GetWheelRotation() < 0)
      ++first_;
    else if (first_ > 0)
      --first_;
    moveToCorner();
  });
  canvas->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    moveToCorner();
  });
  refresh();
}

void LevelSwitcher::refresh() {
  const PlanSettings& settings = workspace_.layout().settings();
  if (settings.levels == shown_ && settings.activeLevel == active_)
    return;
  shown_ = settings.levels;
  active_ = settings.activeLevel;
  places_.resize(shown_.size());
  std::iota(places_.begin(), places_.end(), std::size_t{0});
  std::ranges::stable_sort(places_, std::greater<>(),
                           [this](std::size_t place) { return shown_[place].height; });
  moveToCorner();
}

void LevelSwitcher::moveToCorner() {
  const int margin = FromDIP(kMargin);
  const int row = FromDIP(kRow);
  const wxSize room = GetParent()->GetClientSize() - wxSize(2 * margin, 2 * margin);
  int name = 0;
  const wxFont bold = GetFont().Bold();
  for (const Level& level : shown_) {
    int width = 0;
    GetTextExtent(fromUtf8(level.name), &width, nullptr, nullptr, nullptr, &bold);
    name = std::max(name, std::min(width, FromDIP(kWidestName)));
  }
  const auto most = static_cast<std::size_t>(std::max(room.y * 2 / 3 / row, 1));
  const std::size_t rows = std::min(shown_.size(), most);
  first_ = std::min(first_, shown_.size() - rows);
  const wxSize size(2 * FromDIP(kIcon) + name + margin, static_cast<int>(rows) * row + 2);
  Show(rows > 0 && room.x > 2 * size.x);
  SetSize(GetParent()->GetClientSize().x - margin - size.x, margin, size.x, size.y);
  Refresh();
}

const LevelSwitcher::Spot* LevelSwitcher::spotAt(wxPoint at) {
  const std::size_t row = first_ + static_cast<std::size_t>(std::max(at.y - 1, 0) / FromDIP(kRow));
  if (row >= places_.size())
    return nullptr;
  const int icon = FromDIP(kIcon);
  spot_ = {places_[row], at.x < icon ? Part::Eye : at.x < 2 * icon ? Part::Color : Part::Name};
  return &spot_;
}

void LevelSwitcher::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  const wxSize size = GetClientSize();
  dc.SetPen(systemColour(wxSYS_COLOUR_BTNSHADOW));
  dc.SetBrush(systemColour(wxSYS_COLOUR_WINDOW));
  dc.DrawRectangle(wxRect(size));
  const std::unique_ptr<wxGraphicsContext> context(wxGraphicsContext::Create(dc));
  const int icon = FromDIP(kIcon);
  int top = 1;
  for (std::size_t row = first_; row < places_.size() && top < size.y - 1; ++row) {
    const Level& level = shown_[places_[row]];
    const bool active = level.id == active_;
    const wxRect line(1, top, size.x - 2, FromDIP(kRow));
    top += line.height;
    if (active) {
      context->SetPen(*wxTRANSPARENT_PEN);
      context->SetBrush(systemColour(wxSYS_COLOUR_HIGHLIGHT));
      context->DrawRectangle(line.x, line.y, line.width, line.height);
    }
    const wxColour ink = systemColour(active          ? wxSYS_COLOUR_HIGHLIGHTTEXT
                                      : level.visible ? wxSYS_COLOUR_WINDOWTEXT
                                                      : wxSYS_COLOUR_GRAYTEXT);
    drawEye(*context, {line.x, line.y, icon, line.height}, level.visible, ink);
    const double side = FromDIP(12);
    context->SetPen(wxPen(ink, 1));
    context->SetBrush(wxBrush(wxColour(level.color.r, level.color.g, level.color.b)));
    context->DrawRectangle(line.x + icon + (icon - side) / 2, line.y + (line.height - side) / 2,
                           side, side);
    dc.SetFont(active ? GetFont().Bold() : GetFont());
    dc.SetTextForeground(ink);
    const wxString name =
        wxControl::Ellipsize(fromUtf8(level.name), dc, wxELLIPSIZE_MIDDLE,
                             line.width - 2 * icon - FromDIP(2), wxELLIPSIZE_FLAGS_NONE);
    dc.DrawText(name, line.x + 2 * icon, line.y + (line.height - dc.GetCharHeight()) / 2);
  }
}

void LevelSwitcher::onMotion(wxMouseEvent& event) {
  const Spot* spot = spotAt(event.GetPosition());
  if (!spot)
    return UnsetToolTip();
  const Level& level = shown_[spot->place];
  const wxString name = fromUtf8(level.name);
  wxString tip = wxString::Format(_("Make \"%s\" the active level"), name);
  if (spot->part == Part::Eye)
    tip = wxString::Format(level.visible ? _("Hide \"%s\"") : _("Show \"%s\""), name);
  else if (spot->part == Part::Color)
    tip = wxString::Format(_("Colour of \"%s\"..."), name);
  if (GetToolTipText() != tip)
    SetToolTip(tip);
}

void LevelSwitcher::onClick(wxMouseEvent& event) {
  if (const Spot* spot = spotAt(event.GetPosition()))
    change(*spot);
}

void LevelSwitcher::change(const Spot& spot) {
  LevelList levels(workspace_.layout());
  const Level& level = levels.row(spot.place).level;
  if (spot.part == Part::Name) {
    levels.setActive(spot.place);
  } else if (spot.part == Part::Eye) {
    if (const std::string refusal = levels.setVisible(spot.place, !level.visible); !refusal.empty())
      return workspace_.setHint(refusal);
  } else {
    wxColourData data;
    data.SetColour(wxColour(level.color.r, level.color.g, level.color.b));
    wxColourDialog dialog(wxGetTopLevelParent(this), &data);
    if (dialog.ShowModal() != wxID_OK)
      return;
    const wxColour chosen = dialog.GetColourData().GetColour();
    levels.setTrackColor(spot.place, level.trackcolor,
                         {chosen.Red(), chosen.Green(), chosen.Blue()});
  }
  if (!levels.apply(workspace_.layout()))
    return;
  workspace_.selectionChanged();
  workspace_.changed();
}

} // namespace trassix
