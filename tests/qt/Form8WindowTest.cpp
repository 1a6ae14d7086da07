#include "qt/Form8Window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/ByteOracle.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::FixtureRom;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The 54-byte header of a BMP file that claims a picture of 60000 by 60000 pixels, and no pixels.
const QByteArray kHugeBitmapHeader = QByteArray::fromHex(
    "424D36000000000000003600000028000000" "60EA000060EA000001001800" "000000000000000000000000000000000000000000000000");

TEST(Form8WindowTest, ClicksOnTheScrolledMapReachTheRecordAndTheSaveReachesTheFile) {
  constexpr std::size_t kCinnabar = 0x3EEBF6 + 8 * 8;
  FixtureRom fixture = FixtureRom::FireRed();
  fixture.PutBytes(kCinnabar, {0x11, 0x22, 0x03, 0x04, 0x05, 0x66, 0x07, 0x88});
  test::ScriptedDialogs dialogs;
  QtShell shell(dialogs);
  dialogs.openFileAnswers.push_back(fixture.path());
  shell.Run([&] { OpenRom(shell.form1(), shell.rom(), shell.dialogs()); });
  shell.Run([&] { RunMenuEntry(MenuEntry::mnuflin, shell.session(), shell.dialogs()); });
  QWidget* window = shell.Window(WindowName::Form8);
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  auto find = [window](const char* name) { return window->findChild<QWidget*>(name); };
  auto text = [window](const char* name) { return window->findChild<QLineEdit*>(name)->text(); };

  test::Pick(window->findChild<QComboBox*>("kanto"), 8);  // "Cinnabar Island"
  EXPECT_EQ(window->findChild<QLabel*>("BL")->text(), "B:3");
  EXPECT_EQ(find("Image1")->pos(), QPoint(80, 112));
  EXPECT_TRUE(find("Shape2")->isVisible());

  // Three tiles scrolled: 37 pixels into the viewport is pixel 85 of the map, tile 5.
  window->findChild<QScrollBar*>("HScroll1")->setValue(3);
  EXPECT_EQ(find("Picture2")->pos(), QPoint(-48, 0));
  QWidget* viewport = find("Picture1Inside");
  auto at = [&](QPoint inViewport) { return viewport->mapTo(window, inViewport); };
  QTest::mouseMove(window->windowHandle(), at({5, 50}));
  EXPECT_EQ(find("Shape1")->pos(), QPoint(48, 48));
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at({37, 20}));
  EXPECT_EQ(text("XXt"), "&H5");
  EXPECT_EQ(text("YYt"), "&H1");
  for (const char* marker : {"Shape1", "Shape2", "Image1"}) EXPECT_EQ(find(marker)->pos(), QPoint(80, 16)) << marker;
  // The bird icon now covers the tiles right of and below it; a press there is the map's.
  QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, at({57, 40}));
  EXPECT_EQ(text("XXt"), "&H6");
  EXPECT_EQ(text("YYt"), "&H2");

  const ByteOracle oracle(fixture.path());
  QTest::mouseClick(window->findChild<QPushButton*>("savebutton"), Qt::LeftButton);
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Saved"));
  EXPECT_THAT(oracle.Changes(), ElementsAre(ByteRange{kCinnabar + 4, 1}, ByteRange{kCinnabar + 6, 1}));
  EXPECT_EQ(oracle.Now()[kCinnabar + 4], 6);
  EXPECT_EQ(oracle.Now()[kCinnabar + 6], 2);

  // On a scaled desktop the pointer stands between pixels: at 127.9 it is in pixel 127, tile 7.
  QWidget* surface = find("Picture2");
  QMouseEvent between(QEvent::MouseButtonPress, QPointF(127.9, 63.9), surface->mapToGlobal(QPointF(127.9, 63.9)),
                      Qt::LeftButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(surface, &between);
  EXPECT_EQ(text("XXt") + text("YYt"), "&H7&H3");

  // Pictures: a BMP file, one too large to decode (refused, no message, the size fields
  // reset all the same), a bitmap on the clipboard, then an empty clipboard.
  const std::string bitmap = test::TemporaryPath("map.bmp").string(), huge = test::TemporaryPath("huge.bmp").string();
  ASSERT_TRUE(QImage(640, 480, QImage::Format_RGB32).save(QString::fromStdString(bitmap), "BMP"));
  QFile hugeFile(QString::fromStdString(huge));
  ASSERT_TRUE(hugeFile.open(QIODevice::WriteOnly) && hugeFile.write(kHugeBitmapHeader) == 54);
  hugeFile.close();
  dialogs.messages.clear();
  dialogs.openFileAnswers = {bitmap, huge};
  auto click = [&](const char* button) {
    QTest::mouseClick(window->findChild<QPushButton*>(button), Qt::LeftButton);
    return text("Text1") + text("Text2");
  };
  EXPECT_EQ(click("Command2"), "&H28&H1E");
  test::Type(window->findChild<QLineEdit*>("Text1"), "abc");
  EXPECT_EQ(click("Command2"), "&H28&H1E");
  QGuiApplication::clipboard()->setImage(QImage(384, 320, QImage::Format_RGB32));
  EXPECT_EQ(click("Command1"), "&H18&H14");
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(click("Command1"), "&H18&H14");
  EXPECT_THAT(dialogs.messages, IsEmpty());
  std::filesystem::remove(bitmap);
  std::filesystem::remove(huge);
}

}  // namespace
}  // namespace tessarine
