#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tessarine {

// The one exception of the system. It ends the action in progress and carries a
// sentence for the person at the keyboard: which field or offset, which text, and
// what was not done. The view's action dispatcher catches it and shows the sentence;
// whatever the action wrote before the failure stays in the file.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& sentence) : std::runtime_error(sentence) {}

  // The same failure with what it means for the action appended, as in
  // "Flag: ... is not a word." + "Nothing was written."
  [[nodiscard]] Failure Then(std::string_view consequence) const {
    return Failure(std::string(what()) + " " + std::string(consequence));
  }
};

}  // namespace tessarine
