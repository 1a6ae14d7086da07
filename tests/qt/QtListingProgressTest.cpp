#include "qt/QtListingProgress.h"

#include <QThread>
#include <QWidget>

#include <gtest/gtest.h>

#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

// 512 KiB of free space with a short script in its last two bytes: a listing from &H100
// runs through all of it, one from &H7FFFE is over at once.
struct LongListing {
  LongListing() : fixture("BPRE", 0x80000) {
    fixture.PutBytes(0x7FFFE, {0x6A, 0x02});
    rom.Open(fixture.path());
    form.Text4.text = "what was there";
  }
  test::FixtureRom fixture;
  RomImage rom;
  test::ScriptedDialogs ui;
  Form1 form;
  QWidget window;
};

TEST(QtListingProgressTest, AQuickListingShowsNoDialogAndASlowOneShowsItAndItsCancelKeepsText4) {
  LongListing quick;
  quick.form.Text3.text = "&H7FFFE";
  QtListingProgress shortWork(&quick.window);
  EXPECT_TRUE(ListIntoText4(quick.form, quick.rom, quick.ui, shortWork.Callback()));
  EXPECT_EQ(quick.form.Text4.text, "lock \r\nend \r\n");
  EXPECT_FALSE(shortWork.dialog().isVisible());

  LongListing slow;
  slow.form.Text3.text = "&H100";
  QtListingProgress progress(&slow.window);
  const ListingProgress shown = progress.Callback();
  int steps = 0;
  bool sawDialog = false;
  const bool replaced = ListIntoText4(slow.form, slow.rom, slow.ui, [&](double done) {
    if (++steps <= 6) QThread::msleep(100);  // slow enough for the half second to pass
    const bool goOn = shown(done);
    sawDialog = sawDialog || progress.dialog().isVisible();
    if (steps == 8) progress.dialog().cancel();  // as a press of Cancel does
    return goOn;
  });
  EXPECT_TRUE(sawDialog);
  EXPECT_FALSE(replaced);
  EXPECT_EQ(steps, 9);  // the first step after the cancel stops the listing
  EXPECT_EQ(slow.form.Text4.text, "what was there");
}

}  // namespace
}  // namespace tessarine
