#include "document/entities.h"

#include "document/block.h"
#include "document/record_kinds.h"

#include <array>

namespace trassix {

namespace {

struct Entity {
  std::string_view written;
  char character;
};

constexpr std::array<Entity, 4> kEntities = {
    {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}}};

void decode(std::string& text) {
  if (text.find('&') != std::string::npos)
    text = decodeEntities(text);
}

void decodeAll(PlanContent& content) {
  forEachKind(content, [](auto& records) {
    for (auto& record : records)
      forEachText(record, decode);
  });
}

} // namespace

std::string decodeEntities(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  while (!text.empty()) {
    const std::size_t plain = text.find('&');
    decoded += text.substr(0, plain);
    if (plain == std::string_view::npos)
      break;
    text.remove_prefix(plain);
    Entity found{"&", '&'};
    for (const Entity& entity : kEntities) {
      if (text.starts_with(entity.written))
        found = entity;
    }
    decoded += found.character;
    text.remove_prefix(found.written.size());
  }
  return decoded;
}

void decodeTexts(Layout& layout, std::string& name) {
  decode(name);
  decodeAll(layout.edit());
  for (Level& level : layout.editSettings().levels)
    decode(level.name);
}

void decodeTexts(Block& block) {
  decode(block.name);
  decodeAll(block.content);
}

} // namespace trassix
