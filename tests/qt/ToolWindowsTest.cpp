#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFrame>
#include <QInputDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include "editors/NameEditors.h"
#include "qt/QtDialogs.h"
#include "rom/Failure.h"
#include "shell/OpenRom.h"
#include "support/ShellTest.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

using test::Pick;
using test::Type;

constexpr std::size_t kS = 0x700000;
constexpr std::size_t kT = 0x7A0000;

// A Sapphire ROM with its species and two item names, for the builders, and no free space
// before &H100.
test::FixtureRom BuilderRom() {
  test::FixtureRom rom = test::EventFixtureRom("AXPE");
  rom.PutName(0x3C55BC + 44, "Tonic", 14).PutName(0x3C55BC + 2 * 44, "Cordial", 14).PutBytes(0xC0, Bytes(0x40, 0x11));
  return rom;
}

// The shell with a fixture ROM opened as the Open button does, and one tool window opened
// from the Tools menu.
class ToolWindowsTest : public test::ShellTest {
 protected:
  bool Open(test::FixtureRom& rom, MenuEntry entry, WindowName name) {
    dialogs.openFileAnswers.push_back(rom.path());
    shell.Run([this, entry] {
      OpenRom(shell.form1(), shell.rom(), shell.dialogs());
      RunMenuEntry(entry, shell.session(), shell.dialogs());
    });
    window = shell.Window(name);
    return window != nullptr && QTest::qWaitForWindowExposed(window);
  }
};

// Each builder from the menu: its battle picked in its lists (species 0x19, level 5, item 2 by
// its name), its offsets typed or found, Insert clicked or pressed by Enter in a field. It
// writes the script and the message typed into the box, and closes the form. In Form4, Enter in
// the species box picks the row typed and inserts nothing, nor does Enter on the Game-ready box;
// the two Find Free Space buttons (the text's asks for the message, which the insert then
// shows) lead to a game-ready insert.
TEST_F(ToolWindowsTest, EachBuilderWritesTheBattlePickedInItsListsAndCloses) {
  const std::vector<std::string> asked = {"You wan't a Message in your event script?", "Inserted"};
  const struct {
    MenuEntry entry;
    WindowName name;
    std::deque<MessageAnswer> answers;  // to the menu's question
    void (*steps)(ToolWindowsTest&);
    const char* press;  // a button, or the field that takes Enter
    std::vector<ByteRange> changes;
    std::vector<std::pair<std::size_t, const char*>> bytes;  // where, and what it holds then
  } rows[] = {
      {MenuEntry::mnuwbs, WindowName::Form3, {MessageAnswer::No}, [](ToolWindowsTest& t) {
         Type(t.Find("Text3"), "&H700000");
       }, "Text3", {{kS, 13}}, {{kS, "6A 5A B6 19 00 05 02 00 30 A1 19 00 02"}}},
      {MenuEntry::mnuwbs, WindowName::Form4, {MessageAnswer::Yes}, [](ToolWindowsTest& t) {
         auto* species = t.Find<QComboBox>("Combo1");
         species->lineEdit()->selectAll();
         QTest::keyClicks(species, "pimdor");
         QTest::keyClick(species, Qt::Key_Return);
         EXPECT_EQ(species->currentIndex(), 0x19);
         EXPECT_EQ(t.Text("pkmntxt") + t.Text("crytxt"), "&H19&H19");
         t.Click("Check1");
         t.Find<QWidget>("Check1")->setFocus();
         QTest::keyClick(t.Find<QWidget>("Check1"), Qt::Key_Return);
         t.Click("Command5");
         t.Click("Command4");
         EXPECT_EQ(t.Text("Text12") + " " + t.Text("Text3"), "&H100 &H104");  // the script behind the text and an FF
         EXPECT_EQ(t.dialogs.MessageTexts().size(), 1u);  // nothing inserted yet
       }, "Command1", {{0x100, 2}, {0x104, 26}},
       {{0x100, "BB BC FF FF 6A 5A 0F 00 00 01 00 08 09 04 B6 19 00 05 02 00 30 A1 19 00 02 00 C5 B7 6C 02"}}},
      {MenuEntry::mnugps, WindowName::Form5, {}, [](ToolWindowsTest& t) {
         Type(t.Find("Text12"), "&H7A0000");
         Type(t.Find("Text3"), "&H700000");
       }, "Text3", {{kS, 83}, {kS + 93, 9}, {kS + 103, 48}, {kT, 2}, {kT + 3, 1}},
       {{kS + 46, "79 19 00 05 02 00"}, {kS + 2, "00 00 7A 08"}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.press);
    test::FixtureRom fixture = BuilderRom();
    dialogs.messages.clear();
    dialogs.inputs.clear();
    dialogs.messageAnswers = row.answers;
    dialogs.inputAnswers = {"AB", "AB"};
    ASSERT_TRUE(Open(fixture, row.entry, row.name));
    Pick(Find<QComboBox>("Combo1"), 0x19);
    Pick(Find<QComboBox>("Combo3"), 5);
    EXPECT_EQ(Find<QComboBox>("Combo2")->itemText(2), "002 - Cordial");
    Pick(Find<QComboBox>("Combo2"), 2);
    const ByteOracle oracle(fixture.path());
    row.steps(*this);
    EXPECT_THAT(oracle.Changes(), IsEmpty());
    if (auto* button = qobject_cast<QPushButton*>(Find<QWidget>(row.press))) {
      QTest::mouseClick(button, Qt::LeftButton);
    } else {
      QTest::keyClick(Find<QWidget>(row.press), Qt::Key_Return);
    }
    EXPECT_EQ(oracle.Changes(), row.changes);
    for (const auto& [at, hex] : row.bytes) EXPECT_EQ(oracle.Hex(at, test::FromHex(hex).size()), hex);
    EXPECT_EQ(dialogs.MessageTexts(), row.answers.empty() ? std::vector<std::string>{} : asked);
    const std::string kept = dialogs.inputs.size() > 1 ? dialogs.inputs[1].initial : "";  // the message Find asked for
    EXPECT_EQ(kept, row.name == WindowName::Form4 ? "AB" : "");
    QTest::qWait(0);  // the closed form is dropped
    EXPECT_EQ(shell.Window(row.name), nullptr);
  }
}

// A number field shows the longest text of its kind ("&H" and `digits` digits) whole: its cursor
// at the end stands the text's width from its start, nothing scrolled away.
void ExpectWhole(QWidget* window, const char* field, int digits) {
  auto* box = window->findChild<QLineEdit*>(field);
  const auto cursorAt = [box] { return box->inputMethodQuery(Qt::ImCursorRectangle).toRect().left(); };
  for (const char digit : {'0', 'F'}) {
    const QString text = "&H" + QString(digits, QChar(digit));
    box->setText(text);
    box->home(false);
    const int start = cursorAt();
    box->end(false);
    box->grab();  // a paint, which scrolls the text if it must
    EXPECT_EQ(cursorAt() - start, box->fontMetrics().horizontalAdvance(text)) << field << digit;
  }
}

// The buttons of `window` that Enter on them does not press (their actions kept from running).
std::string DeafToEnter(QWidget* window) {
  std::string deaf;
  for (QPushButton* button : window->findChildren<QPushButton*>()) {
    const QSignalBlocker quiet(button);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &enter);
    if (button->isEnabled() && !enter.isAccepted()) deaf += button->objectName().toStdString() + " ";
  }
  return deaf;
}

// In a large desktop font, each window's number fields show their longest texts whole, and each
// window keeps the size of what it holds (none can be resized). Each tool
// opens with its first field in focus, Tab walks its fields as they are read (Find Free Space
// after its field, the box before Insert), Enter in a field that is no offset moves on as Tab
// does (it loads, saves and inserts nothing), Enter on a button presses it, and Esc closes it;
// none of this writes.
TEST(ToolKeysTest, FieldsFitInALargeFontTabAndEnterWalkThemInOrderAndEscClosesWithoutWriting) {
  const QFont font = QApplication::font();
  QApplication::setFont(QFont(font.family(), 20));
  test::FixtureRom fixture = BuilderRom();
  test::ScriptedDialogs dialogs;
  dialogs.openFileAnswers = {fixture.path()};
  QtShell shell(dialogs);
  shell.Run([&] { OpenRom(shell.form1(), shell.rom(), shell.dialogs()); });
  const ByteOracle oracle(fixture.path());
  const int offset = 8, word = 4, byte = 2;
  for (const auto& [field, digits] : {std::pair{"spritetxt", word}, {"scriptpointxt", offset}, {"Text2", word},
                                      {"Text3", offset}}) {
    ExpectWhole(shell.Window(WindowName::Form1), field, digits);
  }
  QWidget* main = shell.Window(WindowName::Form1);
  EXPECT_EQ(main->minimumSize(), main->maximumSize());
  EXPECT_EQ(DeafToEnter(main), "");
  const struct {
    MenuEntry entry;
    WindowName name;
    std::vector<std::string> tabs;  // from the first field on
    std::vector<std::pair<const char*, int>> numbers;
    std::vector<std::pair<const char*, const char*>> enters;  // a field, and where Enter there moves on to
  } rows[] = {
      {MenuEntry::mnuwbs, WindowName::Form4,
       {"Combo1", "pkmntxt", "crytxt", "Combo3", "Combo2", "Text3", "Command4", "Text12", "Command5", "Check1", "Command1"},
       {{"pkmntxt", word}, {"crytxt", word}, {"Text3", offset}, {"Text12", offset}},
       {{"pkmntxt", "crytxt"}, {"crytxt", "Combo3"}}},
      {MenuEntry::mnugps, WindowName::Form5,
       {"Combo1", "pkmntxt", "Combo3", "Combo2", "Text3", "Command2", "Text12", "Command3", "Check1", "Command1"},
       {{"pkmntxt", word}, {"Text3", offset}, {"Text12", offset}},
       {{"pkmntxt", "Combo3"}}},
      {MenuEntry::mnuib, WindowName::Form6, {"Text1", "Text2", "Command6", "Text3", "Command7", "postionleft"},
       {{"Text2", offset}, {"Text3", offset}, {"postionleft", byte}, {"brailletop", byte}},
       {{"Text2", "Command6"}, {"postionleft", "postiontop"}, {"brailletop", "Command1"}}},
      {MenuEntry::mnustart, WindowName::Form2, {"Combo1", "Combo2", "Combo3", "Command1", "Command3", "Command2"}, {}, {}},
      {MenuEntry::mnuflin, WindowName::Form8, {"hoenn", "loadbutton", "savebutton", "XXt", "YYt", "Command2"},
       {{"XXt", byte}, {"YYt", byte}, {"Text1", word}},
       {{"XXt", "YYt"}, {"YYt", "Command2"}, {"Text1", "Text2"}}},
  };
  for (const auto& row : rows) {
    dialogs.messageAnswers = {MessageAnswer::Yes};  // a message in the wild battle: Form4
    shell.Run([&] { RunMenuEntry(row.entry, shell.session(), shell.dialogs()); });
    QWidget* window = shell.Window(row.name);
    ASSERT_TRUE(window != nullptr && QTest::qWaitForWindowExposed(window));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    std::vector<std::string> walked;
    for (std::size_t i = 0; i < row.tabs.size(); ++i) {
      walked.push_back(window->focusWidget()->objectName().toStdString());
      QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(walked, row.tabs);
    EXPECT_EQ(window->minimumSize(), window->maximumSize());
    for (const auto& [field, digits] : row.numbers) ExpectWhole(window, field, digits);
    const std::size_t told = dialogs.messages.size();
    for (const auto& [field, next] : row.enters) {
      Type(window->findChild<QLineEdit*>(field), "&H19");
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
      const QWidget* focus = QApplication::focusWidget();
      EXPECT_EQ(focus != nullptr ? focus->objectName().toStdString() : "", next) << field;
    }
    EXPECT_EQ(dialogs.messages.size(), told);
    EXPECT_EQ(DeafToEnter(window), "");
    QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    QTest::qWait(0);
    EXPECT_EQ(shell.Window(row.name), nullptr);
  }
  EXPECT_THAT(oracle.Changes(), IsEmpty());
  QApplication::setFont(font);
}

// The starter editor: its lists show the stored rows, Save writes what is picked, Enter in a list
// presses nothing (a key by habit writes nothing), Reload reads again, Done closes without writing.
TEST_F(ToolWindowsTest, Form2SavesWhatIsPickedAndDoneClosesWithoutWriting) {
  test::FixtureRom fixture = test::EventFixtureRom("AXVE");
  fixture.PutWord(0x3F76C4, 0x115).PutWord(0x3F76C6, 0x118).PutWord(0x3F76C8, 0x11B);
  ASSERT_TRUE(Open(fixture, MenuEntry::mnustart, WindowName::Form2));
  auto* ball1 = Find<QComboBox>("Combo1");
  EXPECT_EQ(ball1->currentText().toStdString(), shell.form1().Combo1.rows[277]);
  Pick(Find<QComboBox>("Combo2"), 0x19);
  const ByteOracle oracle(fixture.path());
  Click("Command1");
  QTest::keyClick(ball1, Qt::Key_Return);
  Pick(ball1, 0);
  Click("Command3");
  EXPECT_EQ(ball1->currentIndex(), 277);
  Pick(ball1, 0);
  Click("Command2");
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::Form2), nullptr);
  EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{0x3F76C6, "19 00"}}));  // Save's only change; Done wrote none
  EXPECT_EQ(dialogs.MessageTexts(), (std::vector<std::string>{"Saved"}));
}

// The name editors ask in input boxes; a prompt's "&" is shown, not taken as a shortcut mark.
TEST(QtDialogsTest, AnInputBoxShowsTheAmpersandOfItsPrompt) {
  QString shown;  // the label as a person reads it, with shortcut marks taken out
  QTimer::singleShot(0, [&] {
    if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
      shown = QAccessible::queryAccessibleInterface(box->findChild<QLabel*>())->text(QAccessible::Name);
      box->reject();
    }
  });
  EXPECT_EQ(QtDialogs().Input(kPokemonEntryPrompt, kDefaultTitle), std::nullopt);
  EXPECT_EQ(shown.toStdString(), kPokemonEntryPrompt);
}

// A question before a write answers No to Enter, so that Enter pressed by habit writes nothing.
TEST(QtDialogsTest, EnterInAYesNoQuestionAnswersNo) {
  QTimer::singleShot(0, [] {
    if (QWidget* box = QApplication::activeModalWidget()) QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(QtDialogs().Message("Insert?", MessageButtons::YesNo, kDefaultTitle), MessageAnswer::No);
}

// Once the program is ending, as when a quit closes the message box of an insert (a box that
// says "cancelled"), no question is answered for the person: the action ends with nothing more
// written than the script before the box, and tells so on standard error.
TEST(QtDialogsTest, OnceTheProgramEndsNoQuestionIsAnsweredAndNothingMoreIsWritten) {
  test::FixtureRom fixture = BuilderRom();
  QtDialogs dialogs;
  QtShell shell(dialogs);
  shell.Run([&] { OpenDropped(shell.form1(), shell.rom(), shell.dialogs(), {{fixture.path()}, {}}); });
  shell.ShowWindow(WindowName::Form4);  // the message is asked after the script is written
  QWidget* form4 = shell.Window(WindowName::Form4);
  Type(form4->findChild<QLineEdit*>("Text3"), "&H700000");
  Type(form4->findChild<QLineEdit*>("Text12"), "&H700200");
  const ByteOracle oracle(fixture.path());
  QTimer::singleShot(0, [&] { dialogs.ProgramEnding(); QApplication::activeModalWidget()->close(); });
  testing::internal::CaptureStderr();
  QTest::mouseClick(form4->findChild<QPushButton*>("Command1"), Qt::LeftButton);
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              HasSubstr(std::string(QtDialogs::kProgramEnding) + " Written before it stopped: 20 bytes at &H700000"));
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 20}}));
  EXPECT_THROW(dialogs.Message("Write over them?", MessageButtons::YesNo, kDefaultTitle), Failure);
  EXPECT_THROW(dialogs.OpenFile("Open", "Pokemon Advance rom|*.gba"), Failure);
}

// The ROM dialog starts in the folder of the last ROM chosen, in this run: Qt's own record of
// the dialog's folders is left nowhere.
TEST(QtDialogsTest, TheFileDialogRemembersItsFolderForTheRunOnly) {
  QTemporaryDir roms;
  const QString rom = roms.filePath("a.gba");
  QFile(rom).open(QIODevice::WriteOnly);
  QString startedIn;  // by the second dialog
  QtDialogs dialogs;
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      startedIn = box->directory().path();
      box->findChild<QLineEdit*>("fileNameEdit")->setText(rom);
      QMetaObject::invokeMethod(box, "accept");
    });
    EXPECT_EQ(dialogs.OpenFile("Open", "Pokemon Advance rom|*.gba"), rom.toStdString());
  }
  EXPECT_EQ(startedIn.toStdString(), roms.path().toStdString());
  const QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
  EXPECT_EQ(config.entryList(QDir::Files).join(' ').toStdString(), "");
}

// The braille inserter: the text typed shows as braille at once, the six fields move the text and
// Apply the frame, Insert writes the record and its script, Restore and Load bring back what the
// record holds. A line longer than the box holds in one block of its own: keys change what they
// type and no more, at its start and at its end, and a cut and paste keeps the line whole.
TEST_F(ToolWindowsTest, Form6InsertsLoadsAndPreviewsABrailleRecord) {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  fixture.PutBytes(kS, Bytes(16, 0x11)).PutBytes(kS + 0x100, Bytes(16, 0x11));
  ASSERT_TRUE(Open(fixture, MenuEntry::mnuib, WindowName::Form6));
  auto* text1 = Find<QPlainTextEdit>("Text1");
  auto* label1 = Find<QLabel>("Label1");
  auto* shape1 = Find<QFrame>("Shape1");
  text1->setFocus();
  QTest::keyClicks(text1, "HI\rA");
  EXPECT_EQ(label1->text(), QString::fromUtf8("⠓⠊\n\n⠁"));
  const char* const header[] = {"postionleft", "postiontop", "msgboxleft", "msgboxtop", "brailleleft", "brailletop"};
  for (int i = 0; i < 6; ++i) Type(Find(header[i]), QString::number(i + 1));
  EXPECT_EQ(label1->pos(), QPoint(40, 48));
  EXPECT_EQ(shape1->geometry(), QRect(0, 0, 240, 159));
  Click("Command3");
  EXPECT_EQ(shape1->geometry(), QRect(8, 16, 229, 139));
  Type(Find("Text2"), "&H700000");
  Type(Find("Text3"), "&H700100");
  dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::Yes};  // and write over what is not free space
  const ByteOracle oracle(fixture.path());
  Click("Command1");
  EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{kS, "01 02 03 04 05 06 0D 06 FE 01 FF 00"},
                                                 {kS + 0x100, "6A 5A 78 00 00 70 08 02"}}));
  Click("Command4");
  EXPECT_EQ(shape1->geometry(), QRect(0, 0, 240, 159));
  text1->clear();
  Type(Find("postionleft"), "&H");
  Click("Command2");
  EXPECT_EQ(text1->toPlainText() + Text("postionleft"), "HI\nA&H1");
  EXPECT_EQ(shape1->geometry(), QRect(8, 16, 229, 139));

  Bytes record(6, 0);
  record.resize(6 + 9000, 0x01);
  record.push_back(0xFF);
  shell.rom().WriteBytes(kS + 0x200, record);
  Type(Find("Text2"), "&H700200");
  Click("Command2");
  text1->moveCursor(QTextCursor::Start);
  QTest::keyClicks(text1, "B");
  text1->moveCursor(QTextCursor::End);
  QTest::keyClicks(text1, "\rC");
  const std::string typed = "B" + std::string(9000, 'A') + "\r\nC";
  EXPECT_EQ(shell.session().form6.Text1.text, typed);
  text1->selectAll();
  text1->cut();
  text1->paste();
  EXPECT_EQ(shell.session().form6.Text1.text, typed);
}

// Wingfall on English Emerald: its own last locations, a pick shows the landing, clicks on the
// scrolled map name the tile under them, the save reaches the file, and a BMP file, then a bitmap
// on the clipboard, become the map and set its size.
TEST_F(ToolWindowsTest, Form8ClicksOnTheScrolledMapReachTheRecordAndTheSaveReachesTheFile) {
  constexpr std::size_t kFrontier = 0x59F54A + 19 * 8;
  test::FixtureRom fixture("BPEE");
  fixture.PutBytes(kFrontier, {0x11, 0x22, 0x03, 0x04, 0x05, 0x66, 0x07, 0x88});
  ASSERT_TRUE(Open(fixture, MenuEntry::mnuflin, WindowName::Form8));
  auto* hoenn = Find<QComboBox>("hoenn");
  EXPECT_EQ(hoenn->itemText(18) + ", " + hoenn->itemText(19), "Southern Island, Battle Frontier");
  Pick(hoenn, 19);
  EXPECT_EQ(Find<QLabel>("BL")->text(), "B:3");
  EXPECT_EQ(Find<QWidget>("Image1")->pos(), QPoint(80, 112));
  EXPECT_TRUE(Find<QWidget>("Shape2")->isVisible());

  Find<QScrollBar>("HScroll1")->setValue(3);  // three tiles: 37 pixels into the viewport is pixel 85, tile 5
  EXPECT_EQ(Find<QWidget>("Picture2")->pos(), QPoint(-48, 0));
  QWidget* viewport = Find<QWidget>("Picture1Inside");
  const auto at = [&](QPoint inViewport) { return viewport->mapTo(window, inViewport); };
  QTest::mouseMove(window->windowHandle(), at({5, 50}));
  EXPECT_EQ(Find<QWidget>("Shape1")->pos(), QPoint(48, 48));
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at({37, 20}));
  EXPECT_EQ(Text("XXt") + Text("YYt"), "&H5&H1");
  for (const char* marker : {"Shape1", "Shape2", "Image1"}) {
    EXPECT_EQ(Find<QWidget>(marker)->pos(), QPoint(80, 16)) << marker;
  }
  // The bird icon now covers the tiles right of and below it; a press there is the map's.
  QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, at({57, 40}));
  EXPECT_EQ(Text("XXt") + Text("YYt"), "&H6&H2");
  const ByteOracle oracle(fixture.path());
  Click("savebutton");
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Saved"));
  EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{kFrontier + 4, "06"}, {kFrontier + 6, "02"}}));

  // On a scaled desktop the pointer stands between pixels: at 127.9 it is in pixel 127, tile 7.
  QWidget* surface = Find<QWidget>("Picture2");
  QMouseEvent between(QEvent::MouseButtonPress, QPointF(127.9, 63.9), surface->mapToGlobal(QPointF(127.9, 63.9)),
                      Qt::LeftButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(surface, &between);
  EXPECT_EQ(Text("XXt") + Text("YYt"), "&H7&H3");

  QTemporaryDir folder;
  const QString bitmap = folder.filePath("map.bmp");
  ASSERT_TRUE(QImage(640, 480, QImage::Format_RGB32).save(bitmap, "BMP"));
  dialogs.messages.clear();
  dialogs.openFileAnswers = {bitmap.toStdString()};
  Click("Command2");
  EXPECT_EQ(Text("Text1") + Text("Text2"), "&H28&H1E");
  QGuiApplication::clipboard()->setImage(QImage(384, 320, QImage::Format_RGB32));
  Click("Command1");
  EXPECT_EQ(Text("Text1") + Text("Text2"), "&H18&H14");
  QGuiApplication::clipboard()->clear();  // an empty clipboard keeps the picture, and says so
  Click("Command1");
  EXPECT_EQ(Text("Text1") + Text("Text2"), "&H18&H14");
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("The clipboard holds no picture. The map keeps its picture."));
}

}  // namespace
}  // namespace tessarine
