#include "view3d/label_painter.h"

#include "ui/widgets/utf8.h"
#include "view3d/gl_calls.h"

#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/settings.h>

#include <algorithm>
#include <bit>
#include <cmath>

namespace trassix {

namespace {

constexpr int kPadX = 6;
constexpr int kPadY = 3;
constexpr double kStem = 14; // px between a sign and its place
constexpr std::size_t kKept = 500;
constexpr unsigned char kPaper = 225; // opacity

} // namespace

const LabelPainter::Picture& LabelPainter::pictureOf(const std::string& text, double scale) {
  const auto known = pictures_.find(text);
  if (known != pictures_.end())
    return known->second;
  const wxString shown = shortened(fromUtf8(text), 60);
  wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
  font.SetPixelSize(wxSize(0, std::max(8, static_cast<int>(std::lround(14 * scale)))));
  wxBitmap measure(1, 1);
  wxMemoryDC dc(measure);
  dc.SetFont(font);
  const wxSize room = dc.GetMultiLineTextExtent(shown);
  const wxSize size = room + 2 * wxSize(kPadX, kPadY);
  Picture picture{0, std::min(size.x, 2048), std::min(size.y, 2048), 0};
  picture.side = static_cast<int>(
      std::bit_ceil(static_cast<unsigned>(std::max(picture.width, picture.height))));
  wxBitmap bitmap(picture.side, picture.side, 24);
  dc.SelectObject(bitmap);
  dc.SetBackground(*wxWHITE_BRUSH);
  dc.Clear();
  dc.SetTextForeground(wxColour(40, 44, 52));
  dc.DrawText(shown, kPadX, kPadY);
  dc.SelectObject(wxNullBitmap);
  const wxImage image = bitmap.ConvertToImage();
  const auto pixels =
      static_cast<std::size_t>(picture.side) * static_cast<std::size_t>(picture.side);
  std::vector<unsigned char> rgba(pixels * 4, kPaper);
  for (std::size_t i = 0; i < pixels; ++i)
    std::copy_n(image.GetData() + i * 3, 3, rgba.data() + i * 4);
  glGenTextures(1, &picture.texture);
  glBindTexture(GL_TEXTURE_2D, picture.texture);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
  glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, picture.side, picture.side, 0, GL_RGBA, GL_UNSIGNED_BYTE,
               rgba.data());
  return pictures_[text] = picture;
}

void LabelPainter::draw(const std::vector<SceneLabel>& labels, const OrbitCamera& camera,
                        const PictureTile& tile, double scale) {
  const int n = tile.tiles;
  OrbitCamera whole = camera;
  whole.width *= n;
  whole.height *= n;
  scale *= n;
  if (pictures_.size() > kKept || scale != scale_) {
    for (const auto& [text, picture] : pictures_)
      glDeleteTextures(1, &picture.texture);
    pictures_.clear();
    scale_ = scale;
  }
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glOrtho(tile.column * camera.width, (tile.column + 1) * camera.width,
          (tile.row + 1) * camera.height, tile.row * camera.height, -1, 1);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glDisable(GL_DEPTH_TEST);
  glDisable(GL_LIGHTING);
  glEnable(GL_BLEND);
  glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
  glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
  for (const SceneLabel& label : labels) {
    const auto at = whole.project(label.at);
    if (!at || label.text.empty())
      continue;
    const Picture& picture = pictureOf(label.text, scale);
    const double left = std::round(at->x - picture.width / 2.0);
    const double top = std::round(at->y - kStem * scale - picture.height);
    glColor4f(0.16F, 0.17F, 0.2F, 0.8F);
    glBegin(GL_LINES);
    glVertex2d(at->x, at->y);
    glVertex2d(at->x, top + picture.height);
    glEnd();
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, picture.texture);
    glColor4f(1, 1, 1, 1);
    glBegin(GL_QUADS);
    for (const auto& [u, v] : {std::pair(0, 0), {0, 1}, {1, 1}, {1, 0}}) {
      glTexCoord2d(static_cast<double>(u * picture.width) / picture.side,
                   static_cast<double>(v * picture.height) / picture.side);
      glVertex2d(left + u * picture.width, top + v * picture.height);
    }
    glEnd();
    glDisable(GL_TEXTURE_2D);
  }
  glDisable(GL_BLEND);
}

} // namespace trassix
