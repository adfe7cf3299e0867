#pragma once

#include "document/open_plan.h"
#include "host/workspace.h"
#include "ui/frame/window_questions.h"

#include <wx/frame.h>

#include <filesystem>
#include <memory>

namespace trassix {

struct Command;
struct Desk;
class CanvasPanel;
class CommandBars;
class DockArea;
class PalettePanel;
class PlanFiles;
class PropertiesPanel;
class SidePanels;
class StatusLine;
class WindowTitle;

/// The program's only document window. Owns the open plan, puts the parts of the window together
/// and runs the commands.
class MainFrame : public wxFrame {
 public:
  MainFrame();
  ~MainFrame() override;

  trassix::Layout& layout() { return plan_.layout(); }
  Workspace& workspace() { return workspace_; }
  CanvasPanel& canvasPanel() { return *canvas_; }
  DockArea& docks() { return *docks_; }
  PropertiesPanel* propertiesPanel() { return properties_; }
  bool dirty() const { return plan_.unsaved(); }
  void refreshProperties();

  /// Opens a plan file in place of the present one; false, after telling why, when it cannot be
  /// read.
  bool loadLayout(const std::filesystem::path& path);
  void refreshTitle();
  /// Asks about unsaved changes if there are any; false when the user wants to stay.
  bool promptUnsaved();
  PlanFiles& files();
  /// The program is going to end at once: what is unsaved stays for the next start.
  void keepUnsaved();

 private:
  void buildPanels();
  void readPreferences();
  void bindCommands();
  void run(const Command& command);
  void onCharHook(wxKeyEvent& event);
  /// Why the command whose keys these are does nothing now; null when it does or there is none.
  const char* whyInVain(const wxKeyEvent& event);
  void onClose(wxCloseEvent& event);

  PalettePanel* palette_ = nullptr;
  CanvasPanel* canvas_ = nullptr;
  PropertiesPanel* properties_ = nullptr;
  wxWindow* root_ = nullptr; ///< of the three
  OpenPlan plan_;
  WindowQuestions questions_;
  SystemClipboard clipboard_;
  Workspace workspace_;
  std::unique_ptr<DockArea> docks_;
  std::unique_ptr<SidePanels> sides_;
  std::unique_ptr<CommandBars> bars_;
  std::unique_ptr<StatusLine> status_;
  std::unique_ptr<WindowTitle> title_;
  std::unique_ptr<Desk> desk_;
};

} // namespace trassix
