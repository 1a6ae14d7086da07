#pragma once

#include <functional>
#include <string>

#include "rom/Failure.h"

namespace tessarine::test {

// The sentence of the Failure that ends `action`, or "" when it runs through.
inline std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Failure& failure) {
    return failure.what();
  }
  return "";
}

}  // namespace tessarine::test
