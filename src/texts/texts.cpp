#include "texts/texts.h"

#include <boost/format.hpp>

#include <locale>

namespace trassix {

namespace {

Translator& translator() {
  static Translator current;
  return current;
}

boost::format patternOf(const std::string& text) {
  boost::format pattern("", std::locale::classic());
  pattern.exceptions(boost::io::no_error_bits);
  pattern.parse(text);
  return pattern;
}

} // namespace

void setTranslator(const Translator& wanted) {
  translator() = wanted;
}

std::string tr(const char* english) {
  return translator().text ? translator().text(english) : english;
}

std::string tr(const char* english, std::initializer_list<TextPart> parts) {
  boost::format pattern = patternOf(tr(english));
  for (const TextPart& part : parts)
    pattern % part.words();
  return pattern.str();
}

std::string trCount(const char* one, const char* many, std::uint64_t count,
                    std::initializer_list<TextPart> parts) {
  const std::string text = translator().counted ? translator().counted(one, many, count)
                                                : std::string(count == 1 ? one : many);
  boost::format pattern = patternOf(text);
  pattern % std::to_string(count);
  for (const TextPart& part : parts)
    pattern % part.words();
  return pattern.str();
}

std::string joinTexts(std::initializer_list<std::string> texts, std::string_view between) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty() && !text.empty())
      joined += between;
    joined += text;
  }
  return joined;
}

} // namespace trassix
