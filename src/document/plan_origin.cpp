#include "document/plan_origin.h"

#include "app/services/text_file.h"

#include <boost/crc.hpp>

#include <array>
#include <charconv>

namespace trassix {

namespace fs = std::filesystem;

namespace {

/// CRC-64 as xz files have it.
using Checksum = boost::crc_optimal<64, 0x42F0E1EBA9EA3693, ~0ULL, ~0ULL, true, true>;

} // namespace

std::string contentMark(std::string_view text) {
  Checksum checksum;
  std::size_t length = 0;
  while (!text.empty()) {
    const std::size_t part = std::min(text.find('\r'), text.size());
    checksum.process_bytes(text.data(), part);
    length += part;
    text.remove_prefix(std::min(part + 1, text.size()));
  }
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), checksum.checksum(), 16).ptr;
  return std::string(digits.begin(), end) + '-' + std::to_string(length);
}

std::string contentMarkOf(const fs::path& file) {
  std::string text;
  return readTextFile(file, text).empty() ? contentMark(text) : std::string();
}

PlanOrigin PlanOrigin::of(const fs::path& file, std::string_view text) {
  return {file, contentMark(text), std::time(nullptr)};
}

bool PlanOrigin::changedElsewhere() const {
  const std::string now = file.empty() ? std::string() : contentMarkOf(file);
  return !now.empty() && now != content;
}

bool PlanOrigin::gone() const {
  std::error_code error;
  return !file.empty() && !fs::exists(file, error) && !error;
}

bool sameFile(const fs::path& a, const fs::path& b) {
  std::error_code none;
  return a == b || fs::equivalent(a, b, none);
}

} // namespace trassix
