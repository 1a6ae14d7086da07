#include "qt/QtListingProgress.h"

#include <QThread>
#include <QWidget>

#include <gtest/gtest.h>

#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::FixtureRom;
using test::ScriptedDialogs;

// 512 KiB of free space with a short script in its last two bytes: a listing from the
// start of the free space runs through all of it.
struct LongListing {
  LongListing() : fixture("BPRE", 0x80000) {
    fixture.PutBytes(0x7FFFE, {0x6A, 0x02});  // the last two bytes
    rom.Open(fixture.path());
    form.Text3.text = "&H100";
    form.Text4.text = "what was there";
  }
  FixtureRom fixture;
  RomImage rom;
  ScriptedDialogs ui;
  Form1 form;
  QWidget window;
};

TEST(QtListingProgressTest, AQuickListingShowsNoDialog) {
  LongListing road;
  road.form.Text3.text = "&H7FFFE";
  QtListingProgress progress(&road.window);
  EXPECT_TRUE(ListIntoText4(road.form, road.rom, road.ui, progress.Callback()));
  EXPECT_EQ(road.form.Text4.text, "lock \r\nend \r\n");
  EXPECT_FALSE(progress.dialog().isVisible());
}

TEST(QtListingProgressTest, ASlowListingShowsTheDialogAndItsCancelKeepsText4) {
  LongListing road;
  QtListingProgress progress(&road.window);
  const ListingProgress shown = progress.Callback();
  int steps = 0;
  bool sawDialog = false;
  const bool replaced = ListIntoText4(road.form, road.rom, road.ui, [&](double done) {
    if (++steps <= 6) QThread::msleep(100);  // slow enough for the half second to pass
    const bool goOn = shown(done);
    sawDialog = sawDialog || progress.dialog().isVisible();
    if (steps == 8) progress.dialog().cancel();  // as a press of Cancel does
    return goOn;
  });
  EXPECT_TRUE(sawDialog);
  EXPECT_FALSE(replaced);
  EXPECT_EQ(steps, 9);  // the first step after the cancel stops the listing
  EXPECT_EQ(road.form.Text4.text, "what was there");
}

}  // namespace
}  // namespace tessarine
