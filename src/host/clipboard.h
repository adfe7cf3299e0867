#pragma once

#include <string>

namespace trassix {

/// The system's clipboard, as far as it holds text.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  virtual void put(const std::string& text) = 0;
  virtual std::string text() = 0;
};

} // namespace trassix
