// What rescues unsaved changes from a crash. Each running program has a session in the user's local
// data: a folder whose lock it holds as long as it lives, with a copy of the plan while that is
// unsaved, and a note which file the plan belongs to. What a session without a holder left is
// offered to the user.
#pragma once

#include "app/services/held_lock.h"
#include "document/plan_origin.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace trassix {

class Layout;

/// The session of this program. Its folder is made when it is needed.
class RescueSession {
 public:
  /// Nothing is removed at the end of the object: see `discard` and `close`.
  explicit RescueSession(std::filesystem::path sessions) : sessions_(std::move(sessions)) {}

  /// Notes which file the open plan belongs to, for the copy and for other programs. The messages
  /// are empty on success.
  std::string belongTo(const PlanOrigin& origin);
  const PlanOrigin& origin() const { return origin_; }
  /// Replaces the copy, if there is one, by the plan as it is now: at every moment there is a whole
  /// one on the disk.
  std::string write(const Layout& layout, std::string_view name);
  bool hasCopy() const;
  const std::filesystem::path& copyFile() const { return copy_; }

  void discard(); ///< the copy
  /// Leaves the copy to be offered, and goes on with a folder of its own.
  void leave();
  void close(); ///< removes everything

  const std::filesystem::path& folder() const { return folder_; }

 private:
  std::string open();

  std::filesystem::path sessions_;
  std::filesystem::path folder_; ///< empty until it is needed
  std::filesystem::path copy_;   ///< empty: none
  int written_ = 0;              ///< copies so far
  HeldLock lock_;
  PlanOrigin origin_;
};

/// A copy that a program left which no longer runs. As long as this lives no other program offers
/// it.
struct RescuedPlan {
  std::filesystem::path session; ///< its folder
  std::filesystem::path copy;
  PlanOrigin origin;
  std::string name;
  std::size_t pieces = 0;
  std::time_t when = 0;
  HeldLock claim;

  /// Which file it belongs to and what became of that since, in a sentence.
  std::string note() const;
  /// Takes the latest copy of the session that is whole; false when there is none, and then copies
  /// that are damaged get another name and are told of.
  bool readCopy(std::vector<std::string>& problems);
  /// Removes the copy with its session.
  void throwAway();
};

struct RescuedPlans {
  std::vector<RescuedPlan> plans;    ///< the latest first
  std::vector<std::string> problems; ///< of copies that cannot be read; each is told once
};

/// What sessions but `own` left. With `file`, only what belongs to that. Sessions that left nothing
/// are removed; a damaged copy stays under another name.
RescuedPlans findRescued(const std::filesystem::path& sessions, const RescueSession& own,
                         const std::filesystem::path& file = {});

/// Whether a program that runs has this file open in a session other than `own`.
bool openElsewhere(const std::filesystem::path& sessions, const RescueSession& own,
                   const std::filesystem::path& file);

} // namespace trassix
