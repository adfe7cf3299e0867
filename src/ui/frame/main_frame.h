#pragma once

#include "document/aside_copy.h"
#include "document/open_plan.h"
#include "host/layout_host.h"

#include <wx/cmndata.h>
#include <wx/frame.h>

#include <filesystem>
#include <memory>
#include <set>

class wxSplitterWindow;

namespace trassix {

struct Command;
class CanvasPanel;
class HelpDialog;
enum class HelpTopic;
class PalettePanel;
class PropertiesPanel;

/// The program's only document window. Owns the open plan; carries out the commands and passes
/// everything else on.
class MainFrame : public wxFrame, private LayoutHost {
 public:
  MainFrame();
  ~MainFrame() override;

  trassix::Layout& layout() override { return plan_.layout(); }
  LayoutHost& host() { return *this; }
  CanvasPanel& canvasPanel() { return *canvas_; }
  PropertiesPanel* propertiesPanel() { return properties_; }
  bool dirty() const { return plan_.unsaved(); }
  /// True once the window has the place and size that it starts with.
  bool inPlace() const { return inPlace_; }
  void refreshProperties();

  /// Opens a plan file in place of the present one; false, after telling why, when it cannot be
  /// read.
  bool loadLayout(const std::filesystem::path& path);
  void refreshTitle();
  /// Asks about unsaved changes if there are any; false when the user wants to stay.
  bool promptUnsaved();
  /// Keeps a copy of the plan as it is in the user's local data; plan, file and title stay.
  AsideCopy writeAside() const;

  // The commands, see the command table.
  void newLayout();
  void openLayout();
  void save();
  void saveAs();
  void importLayout();
  void exportLayout();
  void pageSetup();
  void saveBlock();
  void exit();
  void undo();
  void redo();
  void deleteSelection() override;
  void selectEverything();
  void zoomIn();
  void zoomOut();
  void zoomToFit();
  void toggleGrid();
  void toggleSnap();
  void toggleRails();
  void toggleLabels();
  void toggleMeasure();
  void togglePolygon();
  void unitsMm();
  void unitsCm();
  void unitsInch();
  void chooseBaseboard();
  void placeRectangle();
  void manageLevels();
  void options();
  void help();
  void layoutWizardHelp();
  void validate();
  void layoutProperties();

 private:
  static constexpr const char* kBaseTitle = "Trassix v1.7.1 by Quorrail";
  enum StatusField { kHintField, kPiecesField, kPointerField };

  // LayoutHost
  const EditorSwitches& switches() const override { return switches_; }
  void changed() override;
  void selectionChanged() override;
  void repaint() override;
  void setHint(const std::string& hint) override;
  void setPointer(Point world) override;
  void setToolMode(ToolMode mode) override;
  void show(const Notice& notice) override;
  bool confirm(const Question& question) override;
  std::optional<std::size_t> choose(const Choice& choice) override;
  std::optional<std::string> askText(const std::string& title, const std::string& prompt,
                                     const std::string& value) override;
  void popupMenu(const std::vector<MenuRow>& rows) override;
  void editShape(std::int32_t shape) override;
  void putClipboard(const std::string& text) override;
  std::string clipboard() override;

  void buildMenuBar();
  void buildToolBar();
  void buildPanels();
  void buildStatusBar();
  void fitToDisplay();
  void readPreferences();
  void bindCommands();
  void run(const Command& command);
  void onCharHook(wxKeyEvent& event);
  void onClose(wxCloseEvent& event);

  void tellAll();
  void showPieceCount();
  void showUnits();
  void setUnits(std::int32_t units);
  void placeFromPalette(std::string_view article);
  void showHelp(HelpTopic topic);
  void toggleMode(int tool, ToolMode mode);
  void enterMode(ToolMode mode, const PolygonUse& use);
  void drawPolygon(const PolygonUse& use);
  void planReplaced();
  bool menuChecked(int id) const;
  void tellSaved(const FileResult& result);
  /// Says once for each file that it could not be written in the safe way.
  void tellWay(WriteWay way, const std::filesystem::path& path);
  bool confirmReplace(const std::filesystem::path& target, const wxString& name);
  void tellAside(const AsideCopy& copy);
  wxString openedStatus() const;

  PalettePanel* palette_ = nullptr;
  CanvasPanel* canvas_ = nullptr;
  PropertiesPanel* properties_ = nullptr;
  HelpDialog* help_ = nullptr; ///< made when it is first wanted
  OpenPlan plan_;
  std::set<std::filesystem::path> toldInPlace_;
  bool inPlace_ = true;
  wxPrintData printData_;
  wxPageSetupDialogData pageSetup_;
  EditorSwitches switches_;
};

} // namespace trassix
