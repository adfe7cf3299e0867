#pragma once

#include <cstdint>

namespace trassix {

enum class PrintMode : std::int32_t {
  Overview = 0, ///< all of it on one page
  Scaled = 1,   ///< one to N, over as many pages as it takes
  TrueSize = 2, ///< one to one over tiles
};

enum class PrintOrientation : std::int32_t {
  Fewest = 0, ///< whichever needs fewer sheets
  Upright = 1,
  Lying = 2,
};

/// Bits of what departs from a plain print: none set prints what the plan shows, in colour.
namespace print_what {
inline constexpr std::int64_t kNoScenery = 1;    ///< and neither shapes nor tunnels' hills
inline constexpr std::int64_t kNoDimensions = 2; ///< the measuring tape's annotations
inline constexpr std::int64_t kGrid = 4;
inline constexpr std::int64_t kSupports = 8;
inline constexpr std::int64_t kOutlines = 16; ///< spares ink
inline constexpr std::int64_t kActiveLevelOnly = 32;
inline constexpr std::int64_t kDecksApart = 64; ///< a set of pages for each level
inline constexpr std::int64_t kPartsList = 128;
inline constexpr std::int64_t kHeights = 256; ///< grades, heights and clearances
} // namespace print_what

/// What was chosen last for printing, with what a program that starts has.
struct PrintOptions {
  std::int32_t mode = 0;        ///< a `PrintMode`
  std::int32_t overlap = 10;    ///< of neighbouring tiles, mm
  std::int32_t scale = 100;     ///< in hundredths: 1000 prints one to ten
  std::int32_t orientation = 0; ///< a `PrintOrientation`
  std::int64_t what = 0;        ///< bits of `print_what`
  bool selectionOnly = false;
  bool labels = true; ///< and the articles of track

  PrintMode printMode() const { return static_cast<PrintMode>(mode); }
  bool has(std::int64_t bit) const { return (what & bit) != 0; }

  bool operator==(const PrintOptions&) const = default;
};

inline constexpr std::int32_t kSmallestPrintScale = 100;
inline constexpr std::int32_t kLargestPrintScale = 100'000;
inline constexpr std::int32_t kLargestPrintOverlap = 60; ///< mm

} // namespace trassix
