#include "document/layout_writer.h"

#include "document/element_writer.h"
#include "document/piece_lines.h"
#include "document/plan_format.h"

namespace trassix {

std::string writeLayout(const Layout& layout, std::string_view name, const TextSink& sink) {
  ElementWriter writer(sink);
  writer.line("", kXmlDeclaration);
  writer.open("", "<layout");
  writer.text("name", name);
  writer.text("version", "1");
  writer.integer("units", layout.settings().units);
  writer.endParent();
  for (const WritePart write : writtenParts())
    write(writer, layout);
  writer.line("", "</layout>");
  return writer.finish();
}

std::string writeLayout(const Layout& layout, std::string_view name, std::string& text) {
  text.clear();
  return writeLayout(layout, name, [&text](std::string_view part) { text += part; });
}

std::string saveLayout(const Layout& layout, const std::filesystem::path& path,
                       std::string_view name, FileReport* report) {
  return replaceTextFile(
      path, [&](const TextSink& sink) { return writeLayout(layout, name, sink); }, report);
}

} // namespace trassix
