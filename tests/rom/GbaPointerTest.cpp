#include "rom/GbaPointer.h"

#include <gtest/gtest.h>

#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

TEST(GbaPointerTest, ConvertsBetweenPointerAndOffset) {
  EXPECT_EQ(ToRomOffset(0x08160B9B), 0x160B9B);
  EXPECT_EQ(ToHexText(ToRomOffset(0x08160B9B)), "&H160B9B");
  EXPECT_EQ(ToGbaPointer(0x160B9B), 0x08160B9B);
  EXPECT_EQ(ToHexText(ToRomOffset(0)), "&HF8000000");  // a null pointer as a person sees it
  EXPECT_EQ(ToRomOffset(INT32_MIN + 0x08000000), INT32_MIN);
  EXPECT_EQ(ToGbaPointer(0x77FFFFFF), INT32_MAX);
}

TEST(GbaPointerTest, OverflowIsAFailure) {
  EXPECT_THROW(ToRomOffset(INT32_MIN), Failure);
  EXPECT_THROW(ToRomOffset(0x87FFFFFF), Failure);
  EXPECT_THROW(ToGbaPointer(0x78000000), Failure);
  EXPECT_THROW(ToGbaPointer(INT32_MAX), Failure);
}

}  // namespace
}  // namespace tessarine
