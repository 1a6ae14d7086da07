#include "qt/Form6Window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "qt/QtShell.h"
#include "shell/ToolsMenu.h"
#include "support/ByteOracle.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::Type;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(Form6WindowTest, TheWidgetsInsertLoadAndPreviewABrailleRecord) {
  test::ScriptedDialogs dialogs;
  QtShell shell(dialogs);
  test::FixtureRom fixture("AXPE", 0x800000);
  fixture.PutBytes(0x700000, Bytes(16, 0x11)).PutBytes(0x700100, Bytes(16, 0x11));
  shell.rom().Open(fixture.path());
  shell.form1().rom = "Loaded";
  shell.Run([&] { RunMenuEntry(MenuEntry::mnuib, shell.session(), shell.dialogs()); });
  QWidget* window = shell.Window(WindowName::Form6);
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  EXPECT_EQ(window->windowTitle(), "Tessarine Braille Inserter");
  const auto field = [&](const char* name) { return window->findChild<QLineEdit*>(name); };
  const auto click = [&](const char* name) {
    QTest::mouseClick(window->findChild<QPushButton*>(name), Qt::LeftButton);
  };
  auto* text1 = window->findChild<QPlainTextEdit*>("Text1");
  auto* label1 = window->findChild<QLabel*>("Label1");
  auto* shape1 = window->findChild<QFrame*>("Shape1");

  text1->setFocus();
  QTest::keyClicks(text1, "HI");
  QTest::keyClick(text1, Qt::Key_Return);
  QTest::keyClicks(text1, "A");
  EXPECT_EQ(label1->text(), QString::fromUtf8("⠓⠊\n\n⠁"));
  const char* const header[] = {"postionleft", "postiontop", "msgboxleft", "msgboxtop", "brailleleft", "brailletop"};
  for (int i = 0; i < 6; ++i) Type(field(header[i]), QString::number(i + 1));
  EXPECT_EQ(label1->pos(), QPoint(40, 48));  // the braille fields move the text at once
  EXPECT_EQ(shape1->geometry(), QRect(0, 0, 240, 159));
  click("Command3");
  EXPECT_EQ(shape1->geometry(), QRect(8, 16, 229, 139));

  Type(field("Text2"), "&H700000");
  Type(field("Text3"), "&H700100");
  dialogs.messageAnswers = {MessageAnswer::Yes};
  const ByteOracle oracle(fixture.path());
  click("Command1");
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{0x700000, 12}, {0x700100, 8}}));
  const Bytes now = oracle.Now();
  EXPECT_THAT(Bytes(now.begin() + 0x700000, now.begin() + 0x70000C),
              ElementsAre(1, 2, 3, 4, 5, 6, 0x0D, 0x06, 0xFE, 0x01, 0xFF, 0x00));
  EXPECT_THAT(Bytes(now.begin() + 0x700100, now.begin() + 0x700108), ElementsAre(0x6A, 0x5A, 0x78, 0, 0, 0x70, 8, 2));

  click("Command4");
  EXPECT_EQ(shape1->geometry(), QRect(0, 0, 240, 159));
  text1->clear();
  Type(field("postionleft"), "&H");
  click("Command2");
  EXPECT_EQ(text1->toPlainText(), "HI\nA");
  EXPECT_EQ(field("postionleft")->text(), "&H1");
  EXPECT_EQ(shape1->geometry(), QRect(8, 16, 229, 139));

  // A file that is no picture, or a photo of more pixels than are decoded (a BMP header alone,
  // 6000 by 4000), is refused and the picture stays; a BMP becomes the picture.
  QTemporaryDir folder;
  const QString notes = folder.filePath("notes.bmp"), photo = folder.filePath("photo.bmp");
  const QString scene = folder.filePath("scene.bmp");
  QFile(notes).open(QIODevice::WriteOnly);
  QFile photoFile(photo);
  photoFile.open(QIODevice::WriteOnly);
  photoFile.write(QByteArray::fromHex("424D3600000000000000360000002800000070170000A00F000001001800"
                                      "000000000000000000000000000000000000000000000000"));
  photoFile.close();
  QImage(100, 50, QImage::Format_RGB32).save(scene);
  auto* picture1 = window->findChild<QLabel*>("Picture1");
  dialogs.openFileAnswers = {notes.toStdString(), photo.toStdString(), scene.toStdString()};
  click("Command5");
  click("Command5");
  ASSERT_EQ(dialogs.messages.size(), 3u);
  EXPECT_THAT(dialogs.messages[1].text, HasSubstr("The preview keeps its picture."));
  EXPECT_THAT(dialogs.messages[2].text, HasSubstr("6000 by 4000 pixels, more than can be shown (at most 8192 pixels "
                                                  "a side and 16777216 pixels in all)"));
  EXPECT_EQ(picture1->pixmap().size(), QSize(240, 160));
  click("Command5");
  EXPECT_EQ(picture1->pixmap().size(), QSize(100, 50));
  EXPECT_EQ(dialogs.messages.size(), 3u);
}

}  // namespace
}  // namespace tessarine
