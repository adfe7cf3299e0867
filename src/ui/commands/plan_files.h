#pragma once

#include "app/services/text_file.h"
#include "document/rescue/version_store.h"
#include "ui/commands/rescue_keeper.h"

#include <wx/string.h>

#include <filesystem>
#include <set>
#include <string_view>

class wxTopLevelWindow;

namespace trassix {

class CanvasPanel;
class Workspace;

/// The files of the open plan, with what the user is asked and told about them, and how nothing of
/// a plan gets lost.
class PlanFiles {
 public:
  PlanFiles(wxTopLevelWindow& window, Workspace& workspace, CanvasPanel& canvasPanel);

  /// An empty plan in place of the present one.
  void startNew();
  /// A plan from the text of a sample, unsaved and without a file.
  void startFrom(std::string_view text);
  /// Opens a plan file in place of the present one, or unsaved changes to it that were rescued, if
  /// the user wants them; false, after telling why, when it cannot be read.
  bool load(const std::filesystem::path& path);
  /// The same for a file that another program names, after the question about unsaved changes.
  void openNamed(const std::filesystem::path& path);
  /// What a start shows: what was rescued, then the file that the program was started with, if
  /// any.
  void startWith(const std::filesystem::path& named);
  /// Opens an older version as a plan that belongs to no file.
  bool openVersion(const std::filesystem::path& copy);
  void save();
  void saveAs();
  /// Deletes a saved plan, of which older versions are kept.
  std::error_code remove(const std::filesystem::path& path);
  /// Asks about unsaved changes if there are any; false when the user wants to stay.
  bool promptUnsaved();
  RescueKeeper& rescue() { return rescue_; }
  const VersionStore& versions() const { return versions_; }

  /// Says once for each file that it could not be written in the safe way.
  void tellWay(WriteWay way, const std::filesystem::path& path);
  /// False when there is a plan of that name and the user wants to keep it.
  bool confirmReplace(const std::filesystem::path& target, const wxString& name);

 private:
  void tellSaved(const FileResult& result);
  void tellAside(const WrittenCopy& copy);
  bool open(const std::filesystem::path& path);
  bool take(FileResult opened);
  void rememberRecent();
  bool openRescued(RescuedPlan& rescued);
  bool offer(RescuedPlans found);
  bool confirmChangedElsewhere();

  wxTopLevelWindow& window_;
  Workspace& workspace_;
  CanvasPanel& canvasPanel_;
  RescueKeeper rescue_;
  VersionStore versions_;
  std::set<std::filesystem::path> toldInPlace_;
};

} // namespace trassix
