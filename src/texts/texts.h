// Every text that a user reads goes through here, with the English one as its key. What is put into
// a text is a placeholder of it, "%1%" to "%9%", so that a translation may turn their order; whole
// sentences only, nothing is glued together. A text with placeholders has "%%" for a percent sign.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace trassix {

/// Where translations come from, in UTF-8. The windows set it to the toolkit's catalogs; without it
/// texts are English.
struct Translator {
  std::string (*text)(const char* english) = nullptr;
  /// The form that goes with `count`.
  std::string (*counted)(const char* one, const char* many, std::uint64_t count) = nullptr;
};
void setTranslator(const Translator& translator);

/// Something to put into a text: words, or a whole number without grouping. Lengths, angles and
/// shares come as words from `measures/`, which knows their decimals.
class TextPart {
 public:
  TextPart(const char* words) : words_(words) {}        // NOLINT(google-explicit-constructor)
  TextPart(std::string_view words) : words_(words) {}   // NOLINT(google-explicit-constructor)
  TextPart(const std::string& words) : words_(words) {} // NOLINT(google-explicit-constructor)
  template <std::integral Number>
  requires(!std::same_as<Number, bool> && !std::same_as<Number, char>)
      TextPart(Number number) // NOLINT(google-explicit-constructor)
      : words_(std::to_string(number)) {}

  const std::string& words() const { return words_; }

 private:
  std::string words_;
};

/// Marks a text for translation where it stands in a table; `tr` is called where it is shown.
constexpr const char* trLater(const char* english) {
  return english;
}

std::string tr(const char* english);

/// With its placeholders filled, the first part in place of "%1%". A placeholder without a part
/// stays empty, a part without a placeholder is left out: a bad translation is never a failure.
std::string tr(const char* english, std::initializer_list<TextPart> parts);

/// The form that goes with `count`, which itself is "%1%"; `parts` follow from "%2%" on.
std::string trCount(const char* one, const char* many, std::uint64_t count,
                    std::initializer_list<TextPart> parts = {});

/// Whole phrases one after the other; empty ones are left out.
std::string joinTexts(std::initializer_list<std::string> texts, std::string_view between);

} // namespace trassix
