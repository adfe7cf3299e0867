#include "ui/widgets/remembered_size.h"

#include "app/desktop/standard_folders.h"
#include "app/services/program_memory.h"

#include <wx/display.h>
#include <wx/toplevel.h>

namespace trassix {

namespace {

const std::string kTopic = "windowSizes";

std::optional<wxSize> rememberedSize(const std::string& name) {
  const auto windows = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic);
  if (!windows || !windows->contains(name) || !windows->at(name).is_object())
    return std::nullopt;
  const auto width = valueIn<std::int16_t>(windows->at(name), "width");
  const auto height = valueIn<std::int16_t>(windows->at(name), "height");
  return width && height ? std::optional(wxSize(*width, *height)) : std::nullopt;
}

} // namespace

void rememberSize(wxTopLevelWindow& window) {
  const std::string name = window.GetName().utf8_string();
  const wxSize least = window.GetClientSize();
  wxSize size = window.FromDIP(rememberedSize(name).value_or(wxSize()));
  size.DecTo(wxDisplay(&window).GetClientArea().GetSize());
  size.IncTo(least);
  window.SetClientSize(size);
  window.Bind(wxEVT_SHOW, [&window, name, size](wxShowEvent& event) {
    event.Skip();
    const wxSize left = window.GetClientSize();
    if (event.IsShown() || left == size)
      return;
    const wxSize kept = window.ToDIP(left);
    // Not worth a word when it fails.
    ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [&](auto& windows) {
      windows[name] = {{"width", kept.x}, {"height", kept.y}};
    });
  });
}

} // namespace trassix
