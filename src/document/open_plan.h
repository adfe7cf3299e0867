#pragma once

#include "document/layout.h"
#include "document/plan_file.h"
#include "document/plan_origin.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace trassix {

/// The plan that is worked on: the document, the file and the name it goes by, and whether any of
/// it is unsaved. Texts are in it as the user typed them, however often they were saved.
class OpenPlan {
 public:
  Layout& layout() { return layout_; }
  const Layout& layout() const { return layout_; }
  /// Empty when a save has to ask for a name: the plan has no file, or one that must not be written
  /// over unasked.
  const std::filesystem::path& file() const { return origin_.file; }
  /// The same with what the file held when it was read or written here.
  const PlanOrigin& origin() const { return origin_; }
  const std::string& name() const { return name_; }
  bool unsaved() const { return unsaved_; }
  void noteChange() { unsaved_ = true; }

  /// An empty plan. The name stays, to be offered by the next save.
  void startNew(std::int32_t units);

  /// A plan from the text of a file, unsaved and without a file of its own.
  FileResult startFrom(std::string text);

  /// Takes over the plan in a file; a failure leaves the open one alone. What is wrong with a plan
  /// that can be read all the same is among the notices. A file that was not understood whole does
  /// not become the plan's file, so that what is left in it is not lost by a save.
  FileResult load(const std::filesystem::path& path);

  /// The same for a copy of a plan that was kept apart: it counts as unsaved and belongs to
  /// `origin`.
  FileResult loadCopy(const std::filesystem::path& copy, const PlanOrigin& origin);

  /// Writes the plan to its file. File and name of `saveAs` count also when it fails, so that the
  /// next save goes there.
  FileResult save();
  FileResult saveAs(const std::filesystem::path& path, std::string_view name);

  /// To be told of each file that was deleted: it may have been the plan's.
  void fileDeleted(const std::filesystem::path& path);

 private:
  FileResult take(PlanFile plan, const PlanOrigin& origin, bool unsaved);

  Layout layout_;
  PlanOrigin origin_;
  std::string name_;
  bool unsaved_ = false;
};

struct ImportResult : FileResult {
  enum class Step : std::uint8_t { Read, Copy, Done };
  Step step = Step::Read; ///< the one that failed, if any did
};

/// Copies a plan file byte for byte and then stores `name` in the copy. A copy of a file that was
/// not understood whole is left as it is. Source and target may be one file.
ImportResult importPlan(const std::filesystem::path& source, const std::filesystem::path& target,
                        std::string_view name);

} // namespace trassix
