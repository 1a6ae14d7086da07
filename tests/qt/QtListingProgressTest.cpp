#include "qt/QtListingProgress.h"

#include <QThread>
#include <QWidget>

#include <gtest/gtest.h>

#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

TEST(QtListingProgressTest, ASlowListingShowsTheDialogAndItsCancelKeepsText4) {
  test::FixtureRom fixture("BPRE", 0x80000);  // 512 KiB of free space, a short script in its last two bytes
  fixture.PutBytes(0x7FFFE, {0x6A, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  test::ScriptedDialogs ui;
  Form1 form;
  form.Text3.text = "&H100";  // through all the free space
  form.Text4.text = "what was there";
  QWidget window;
  QtListingProgress progress(&window);
  const ListingProgress shown = progress.Callback();
  int steps = 0;
  bool sawDialog = false;
  const bool replaced = ListIntoText4(form, rom, ui, [&](double done) {
    if (++steps <= 6) QThread::msleep(100);  // slow enough for the half second to pass
    const bool goOn = shown(done);
    sawDialog = sawDialog || progress.dialog().isVisible();
    if (steps == 8) progress.dialog().cancel();  // as a press of Cancel does
    return goOn;
  });
  EXPECT_TRUE(sawDialog);
  EXPECT_FALSE(replaced);
  EXPECT_EQ(steps, 9);  // the first step after the cancel stops the listing
  EXPECT_EQ(form.Text4.text, "what was there");
}

}  // namespace
}  // namespace tessarine
