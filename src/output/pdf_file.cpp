#include "output/pdf_file.h"

#include "embedded/programFonts.h"
#include "geometry/pose.h"
#include "output/page_painter.h"
#include "texts/texts.h"

#include <boost/regex/pending/unicode_iterator.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <hpdf.h>
#include <hpdf_doc.h>
#include <hpdf_fontdef.h>
#include <hpdf_streams.h>
#include <map>
#include <stdexcept>

namespace trassix {

namespace {

constexpr double kPointsPerPx = 72.0 / 96;
constexpr double kEmUnits = 1000;
constexpr double kLineHeight = 1.164; ///< of the font's size: what it has above and below the line
/// From the middle of a line of text to its baseline, of the font's size.
constexpr double kBaseline = 0.35;
constexpr HPDF_UINT kBlock = 1 << 16; ///< bytes by which a font is kept in memory
constexpr std::size_t kFaces = 2;     ///< plain and bold, in the order of the embedded fonts

/// The library writes simple fonts by tables of 256 letters; what one does not have the next may.
constexpr std::array<const char*, 9> kTables{"WinAnsiEncoding", "CP1250",    "CP1251",
                                             "CP1253",          "CP1254",    "CP1257",
                                             "ISO8859-2",       "ISO8859-4", "ISO8859-10"};

/// All letters of a text; what is not UTF-8 counts as a question mark.
std::u32string lettersOf(std::string_view utf8) {
  try {
    using Decoder = boost::u8_to_u32_iterator<std::string_view::const_iterator, char32_t>;
    return {Decoder(utf8.begin(), utf8.begin(), utf8.end()),
            Decoder(utf8.end(), utf8.begin(), utf8.end())};
  } catch (const std::out_of_range&) {
    return std::u32string(utf8.size(), U'?');
  }
}

void closeDocument(HPDF_Doc document) {
  HPDF_Free(document);
}

/// A document with the program's fonts registered in it.
class Fonts {
 public:
  explicit Fonts(HPDF_Doc document) : document_(document) {
    for (std::size_t face = 0; face < kFaces; ++face)
      load(face);
    for (std::size_t table = 0; table < kTables.size(); ++table)
      if (HPDF_Encoder encoder = HPDF_GetEncoder(document_, kTables[table]))
        for (unsigned code = 32; code < 256; ++code)
          codes_.try_emplace(HPDF_Encoder_GetUnicode(encoder, static_cast<HPDF_UINT16>(code)),
                             Code{table, static_cast<char>(code)});
  }

  /// Letters of one table.
  struct Run {
    std::size_t table;
    std::string bytes;
  };
  std::vector<Run> runsOf(std::string_view utf8) const {
    std::vector<Run> runs;
    for (const char32_t letter : lettersOf(utf8)) {
      const auto known = codes_.find(letter);
      const Code code = known == codes_.end() ? Code{0, '?'} : known->second;
      // Letters that all tables have stay with those before them.
      if (runs.empty() || (runs.back().table != code.table && letter >= 128))
        runs.push_back({code.table, {}});
      runs.back().bytes.push_back(code.byte);
    }
    return runs;
  }

  HPDF_Font font(bool bold, std::size_t table) const {
    return HPDF_GetFont(document_, definitions_[bold ? 1 : 0]->base_font, kTables[table]);
  }

  double width(std::string_view utf8, bool bold) const {
    double units = 0;
    for (const char32_t letter : lettersOf(utf8)) {
      const char32_t drawn = codes_.contains(letter) ? letter : U'?';
      units +=
          HPDF_TTFontDef_GetCharWidth(definitions_[bold ? 1 : 0], static_cast<HPDF_UINT16>(drawn));
    }
    return units / kEmUnits;
  }

 private:
  struct Code {
    std::size_t table;
    char byte;
  };

  void load(std::size_t face) {
    const std::span<const unsigned char> bytes = programFonts()[face];
    HPDF_Stream stream = HPDF_MemStream_New(document_->mmgr, kBlock);
    HPDF_Stream_Write(stream, bytes.data(), static_cast<HPDF_UINT>(bytes.size()));
    HPDF_FontDef definition = HPDF_TTFontDef_Load(document_->mmgr, stream, HPDF_TRUE);
    if (definition == nullptr)
      throw std::runtime_error("a font of the program cannot be read");
    HPDF_Doc_RegisterFontDef(document_, definition);
    std::array<char, 7> tag{'T', 'R', 'A', 'S', 'S', static_cast<char>('A' + face), '\0'};
    HPDF_TTFontDef_SetTagName(definition, tag.data());
    definitions_[face] = definition;
  }

  HPDF_Doc document_;
  std::array<HPDF_FontDef, kFaces> definitions_{};
  std::map<char32_t, Code> codes_;
};

} // namespace

struct PdfFile::Data {
  Data() : document(HPDF_New(&Data::failed, this), &closeDocument), fonts(document.get()) {}

  static void failed(HPDF_STATUS error, HPDF_STATUS detail, void* data) {
    auto& self = *static_cast<Data*>(data);
    if (self.problem.empty())
      self.problem = tr("The document cannot be made (error %1%, %2%).", {error, detail});
  }

  HPDF_ExtGState opacity(std::uint8_t alpha) {
    const auto [known, isNew] = opacities.try_emplace(alpha, nullptr);
    if (isNew) {
      known->second = HPDF_CreateExtGState(document.get());
      HPDF_ExtGState_SetAlphaFill(known->second, static_cast<HPDF_REAL>(alpha / 255.0));
      HPDF_ExtGState_SetAlphaStroke(known->second, static_cast<HPDF_REAL>(alpha / 255.0));
    }
    return known->second;
  }

  std::string problem;
  std::unique_ptr<HPDF_Doc_Rec, void (*)(HPDF_Doc)> document;
  Fonts fonts;
  std::map<std::uint8_t, HPDF_ExtGState> opacities;
  std::unique_ptr<PageSurface> page;
};

class PdfFile::PageSurface : public Surface {
 public:
  PageSurface(Data& data, SizeMm size)
      : data_(data), page_(HPDF_AddPage(data.document.get())),
        heightPt_(size.height * kPxPerMm * kPointsPerPx) {
    HPDF_Page_SetWidth(page_, real(size.width * kPxPerMm * kPointsPerPx));
    HPDF_Page_SetHeight(page_, real(heightPt_));
    HPDF_Page_SetLineJoin(page_, HPDF_ROUND_JOIN);
  }

  double deviceScale() const override { return 1000; }

  void clip(const Box& part) override {
    HPDF_Page_GSave(page_);
    HPDF_Page_Rectangle(page_, x(part.minX), y(part.maxY), length(part.maxX - part.minX),
                        length(part.maxY - part.minY));
    HPDF_Page_Clip(page_);
    HPDF_Page_EndPath(page_);
    outside_ = look_;
  }
  void unclip() override {
    HPDF_Page_GRestore(page_);
    look_ = outside_;
  }

  void polyline(std::span<const Point> points, const Stroke& stroke) override {
    if (points.size() < 2)
      return;
    use(stroke);
    add(points);
    HPDF_Page_Stroke(page_);
  }
  void polygon(std::span<const Point> points, std::optional<Rgba> fill,
               std::optional<Stroke> outline) override {
    if (points.size() < 2)
      return;
    // Fill and edge apart, since they may let through differently.
    if (fill) {
      use(*fill);
      add(points);
      HPDF_Page_Fill(page_);
    }
    if (outline) {
      use(*outline);
      add(points);
      HPDF_Page_ClosePathStroke(page_);
    }
  }
  void polylines(const PointRuns& lines, const Stroke& stroke) override {
    if (lines.size() == 0)
      return;
    use(stroke);
    for (std::size_t i = 0; i < lines.size(); ++i)
      add(lines[i]);
    HPDF_Page_Stroke(page_);
  }
  void polygons(const PointRuns& outlines, Rgba fill) override {
    if (outlines.size() == 0)
      return;
    use(fill);
    for (std::size_t i = 0; i < outlines.size(); ++i) {
      add(outlines[i]);
      HPDF_Page_ClosePath(page_);
    }
    HPDF_Page_Fill(page_);
  }
  void segments(std::span<const Point> ends, const Stroke& stroke) override {
    if (ends.size() < 2)
      return;
    use(stroke);
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
      add(ends.subspan(i, 2));
    HPDF_Page_Stroke(page_);
  }
  void circle(Point centre, double radius, std::optional<Rgba> fill,
              std::optional<Stroke> outline) override {
    if (fill) {
      use(*fill);
      HPDF_Page_Circle(page_, x(centre.x), y(centre.y), length(radius));
      HPDF_Page_Fill(page_);
    }
    if (outline) {
      use(*outline);
      HPDF_Page_Circle(page_, x(centre.x), y(centre.y), length(radius));
      HPDF_Page_Stroke(page_);
    }
  }

  void text(std::string_view text, Point centre, double degrees, const TextStyle& style) override {
    use(style.color);
    const double turn = toRadians(degrees);
    const double half = data_.fonts.width(text, style.bold) * style.em() / 2;
    const double down = style.em() * kBaseline;
    const Point start{centre.x - half * std::cos(turn) - down * std::sin(turn),
                      centre.y - half * std::sin(turn) + down * std::cos(turn)};
    HPDF_Page_BeginText(page_);
    HPDF_Page_SetTextMatrix(page_, real(std::cos(turn)), real(-std::sin(turn)),
                            real(std::sin(turn)), real(std::cos(turn)), x(start.x), y(start.y));
    for (const Fonts::Run& run : data_.fonts.runsOf(text)) {
      HPDF_Page_SetFontAndSize(page_, data_.fonts.font(style.bold, run.table), length(style.em()));
      HPDF_Page_ShowText(page_, run.bytes.c_str());
    }
    HPDF_Page_EndText(page_);
  }
  SizePx textSize(std::string_view text, const TextStyle& style) override {
    return {data_.fonts.width(text, style.bold) * style.em(), kLineHeight * style.em()};
  }

 private:
  /// What the page was told last.
  struct Look {
    std::optional<Stroke> stroke;
    std::optional<Rgba> fill;
    int alpha = 255;
  };

  static HPDF_REAL real(double value) { return static_cast<HPDF_REAL>(value); }
  static HPDF_REAL length(double px) { return real(px * kPointsPerPx); }
  /// The library takes no fractions here.
  static HPDF_UINT16 wholePoints(double px) {
    return static_cast<HPDF_UINT16>(std::max(1L, std::lround(px * kPointsPerPx)));
  }
  HPDF_REAL x(double px) const { return length(px); }
  HPDF_REAL y(double px) const { return real(heightPt_ - px * kPointsPerPx); }

  void add(std::span<const Point> points) {
    if (points.size() < 2)
      return;
    HPDF_Page_MoveTo(page_, x(points[0].x), y(points[0].y));
    for (const Point& p : points.subspan(1))
      HPDF_Page_LineTo(page_, x(p.x), y(p.y));
  }

  void useAlpha(std::uint8_t alpha) {
    if (look_.alpha == alpha)
      return;
    look_.alpha = alpha;
    HPDF_Page_SetExtGState(page_, data_.opacity(alpha));
  }
  void use(Rgba fill) {
    useAlpha(fill.a);
    if (look_.fill == fill)
      return;
    look_.fill = fill;
    HPDF_Page_SetRGBFill(page_, real(fill.r / 255.0), real(fill.g / 255.0), real(fill.b / 255.0));
  }
  void use(const Stroke& stroke) {
    useAlpha(stroke.color.a);
    if (look_.stroke == stroke)
      return;
    look_.stroke = stroke;
    const Rgba c = stroke.color;
    HPDF_Page_SetRGBStroke(page_, real(c.r / 255.0), real(c.g / 255.0), real(c.b / 255.0));
    HPDF_Page_SetLineWidth(page_, length(stroke.width));
    const std::array<HPDF_UINT16, 2> dashes{wholePoints(stroke.dash()), wholePoints(stroke.gap())};
    const bool solid = stroke.style == Stroke::Style::Solid;
    HPDF_Page_SetDash(page_, solid ? nullptr : dashes.data(), solid ? 0 : 2, 0);
  }

  Data& data_;
  HPDF_Page page_;
  double heightPt_;
  Look look_;
  Look outside_; ///< of the clip
};

PdfFile::PdfFile(std::string_view title) : data_(std::make_unique<Data>()) {
  HPDF_SetCompressionMode(data_->document.get(), HPDF_COMP_ALL);
  HPDF_UseUTFEncodings(data_->document.get());
  HPDF_SetCurrentEncoder(data_->document.get(), "UTF-8");
  HPDF_SetInfoAttr(data_->document.get(), HPDF_INFO_CREATOR, "Trassix");
  HPDF_SetInfoAttr(data_->document.get(), HPDF_INFO_TITLE, std::string(title).c_str());
}

PdfFile::~PdfFile() = default;

Surface& PdfFile::addPage(SizeMm size) {
  data_->page = std::make_unique<PageSurface>(*data_, size);
  return *data_->page;
}

std::string PdfFile::take() {
  std::string bytes;
  HPDF_Doc document = data_->document.get();
  if (data_->problem.empty() && HPDF_SaveToStream(document) == HPDF_OK) {
    HPDF_UINT32 size = HPDF_GetStreamSize(document);
    bytes.resize(size);
    HPDF_ResetStream(document);
    HPDF_ReadFromStream(document, reinterpret_cast<HPDF_BYTE*>(bytes.data()), &size);
    bytes.resize(size);
  }
  return data_->problem.empty() ? bytes : std::string();
}

const std::string& PdfFile::problem() const {
  return data_->problem;
}

SizePx PdfFile::textSize(std::string_view text, const TextStyle& style) {
  static const std::unique_ptr<HPDF_Doc_Rec, void (*)(HPDF_Doc)> document(
      HPDF_New(nullptr, nullptr), &closeDocument);
  static const Fonts fonts(document.get());
  return {fonts.width(text, style.bold) * style.em(), kLineHeight * style.em()};
}

} // namespace trassix
