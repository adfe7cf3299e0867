#include "app/services/program_memory.h"

#include "app/services/held_lock.h"
#include "app/services/text_file.h"

#include <chrono>
#include <thread>

namespace trassix {

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

constexpr int kDeepest = 64; ///< of lists in lists, which are written by recursion

/// Keeps other running programs from writing meanwhile. Where the system does not offer that, or
/// one of them hangs, it goes on after a while without.
HeldLock writeTurn(fs::path file) {
  file += ".lock"; // the file itself is going to be replaced
  HeldLock lock = HeldLock::take(file);
  for (int tries = 0; tries < 300 && lock.state() == HeldLock::State::HeldByOther; ++tries) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    lock = HeldLock::take(file);
  }
  return lock;
}

/// Null for a damaged text.
json parsed(const std::string& text) {
  bool tooDeep = false;
  json root = json::parse(
      text,
      [&tooDeep](int depth, json::parse_event_t, json&) {
        tooDeep = tooDeep || depth > kDeepest;
        return !tooDeep;
      },
      false);
  return root.is_object() && !tooDeep ? root : json();
}

std::string keepDamaged(const fs::path& file, const std::string& text) {
  const auto copy = [&file](int number) {
    fs::path path = file;
    return path += ".damaged" + (number > 1 ? std::string("-").append(std::to_string(number)) : "");
  };
  int number = 1;
  for (std::error_code error; fs::exists(copy(number), error);)
    ++number;
  return writeBytes(copy(number), text);
}

/// The message is empty for a file that is not there, too, and `text` then as well.
std::string readIfThere(const fs::path& file, std::string& text) {
  std::error_code error;
  return fs::exists(file, error) || error ? readTextFile(file, text) : std::string();
}

} // namespace

std::optional<json> ProgramMemory::recall(const std::string& topic, std::string* problem) const {
  std::string text;
  const std::string message = readIfThere(file_, text);
  if (problem != nullptr)
    *problem = message;
  const json root = parsed(text);
  const auto found = root.find(topic);
  return found != root.end() && found->is_object() ? std::optional(*found) : std::nullopt;
}

std::string ProgramMemory::remember(const std::string& topic,
                                    const std::function<void(Section&)>& edit) const {
  std::error_code ignored; // a folder that cannot be made shows as a file that cannot be written
  fs::create_directories(file_.parent_path(), ignored);
  const HeldLock turn = writeTurn(file_);
  std::string text;
  if (std::string message = readIfThere(file_, text); !message.empty())
    return message;
  json root = parsed(text);
  const bool damaged = !text.empty() && root.is_null();
  json& section = root[topic];
  if (damaged || !(section.is_null() || section.is_object()))
    if (std::string message = keepDamaged(file_, text); !message.empty())
      return message;
  const json before = section;
  if (!section.is_object())
    section = json::object();
  edit(section);
  if (section == before)
    return {};
  return writeTextFile(file_, root.dump(2, ' ', false, json::error_handler_t::replace) + '\n');
}

} // namespace trassix
