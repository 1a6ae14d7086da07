#include "shell/Form1Window.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

TEST(Form1WindowTest, ShowsTheMainWindowTitle) {
  Form1 form;
  Form1Window window(form);
  window.show();
  EXPECT_EQ(window.windowTitle().toStdString(), "Tessarine Load Test");
}

}  // namespace
}  // namespace tessarine
