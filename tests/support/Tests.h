#pragma once

// What the tests share: GoogleTest and its matchers, the fixtures, the byte oracle and the
// session driven by scripted dialogs, with the names every test file uses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"

namespace tessarine {
using test::ByteOracle;
using test::ByteRange;
using test::FailureOf;
using test::FixtureRom;
using test::MainSession;
using test::ScriptedDialogs;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
}  // namespace tessarine
