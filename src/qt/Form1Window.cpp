#include "qt/Form1Window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCursor>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>
#include <tuple>

#include "events/EventSelection.h"
#include "events/EventWords.h"
#include "events/PersonRecord.h"
#include "qt/ControlSync.h"
#include "qt/LinedTextBoxWidget.h"
#include "qt/QtArtwork.h"
#include "qt/QtListingProgress.h"
#include "qt/QtShell.h"
#include "scripts/ListScript.h"
#include "shell/OpenRom.h"

namespace tessarine {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// Widgets that stand in one place, one over the other; the last one is on top.
QWidget* OnePlace(QWidget* parent, std::initializer_list<QWidget*> widgets) {
  auto* place = new QWidget(parent);
  auto* stack = new QStackedLayout(place);
  stack->setStackingMode(QStackedLayout::StackAll);
  for (QWidget* widget : widgets) stack->addWidget(widget);
  stack->setCurrentWidget(*(widgets.end() - 1));
  return place;
}

constexpr int kImageButtonWidth = 76;
constexpr int kImageButtonHeight = 30;

}  // namespace

ImageButton::ImageButton(const QString& name, const QString& labelName, bool captionActs, QWidget* parent)
    : QAbstractButton(parent), label_(new QLabel(this)) {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  label_->setObjectName(labelName);
  // The caption sits in the middle of the picture, as large as its text.
  if (captionActs) {
    label_->setAttribute(Qt::WA_TransparentForMouseEvents);
  } else {
    label_->installEventFilter(this);
    label_->setCursor(Qt::ArrowCursor);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(label_, 0, Qt::AlignCenter);
}

bool ImageButton::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return watched == label_;  // taken by the caption, and nothing more
    default:
      return false;
  }
}

QSize ImageButton::sizeHint() const {
  return QSize(std::max(kImageButtonWidth, label_->sizeHint().width() + 20), kImageButtonHeight);
}

void ImageButton::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.drawPixmap(0, 0, ButtonFace(size(), isDown()));
  if (hasFocus()) {
    p.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
    p.drawRoundedRect(rect().adjusted(3, 3, -4, -4), 5, 5);
  }
}

void ImageButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    animateClick();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

Form1Window::Form1Window(QtShell& shell) : shell_(shell) {
  setObjectName("Form1");
  setWindowIcon(ApplicationIcon());
  BuildWidgets();
  Connect();
  Refresh();
  // A file dropped anywhere on the window is the window's, also over a field; text dragged
  // into a field goes there, as in any field.
  for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
  setAcceptDrops(true);
}

Form1Window::~Form1Window() = default;

void Form1Window::BuildWidgets() {
  // A click on the caption "Open" does nothing; those on "Tools" and "About" do what a
  // click on their pictures does.
  Image3_ = new ImageButton("Image3", "Label15", false, this);
  Image4_ = new ImageButton("Image4", "Label16", true, this);
  Image5_ = new ImageButton("Image5", "Label17", true, this);
  // The captions take the system's button text colour.
  for (ImageButton* button : {Image3_, Image4_, Image5_}) {
    QPalette palette = button->label()->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::ButtonText));
    button->label()->setPalette(palette);
  }

  Image6_ = Named(new QLabel(this), "Image6");
  Image6_->setPixmap(EmblemPicture(200));
  Image6_->setFixedSize(200, 200);

  Combo3_ = Named(new QComboBox(this), "Combo3");
  Combo3_->setEditable(true);
  Combo4_ = Named(new QComboBox(this), "Combo4");
  Combo4_->setEditable(true);
  Combo5_ = Named(new QComboBox(this), "Combo5");
  Combo5_->setEditable(true);
  // The event lists take typed text, and typed text does nothing: no completion, and Enter
  // picks no entry. Only picking one from the list selects an event.
  for (QComboBox* events : {Combo3_, Combo4_, Combo5_}) {
    events->setInsertPolicy(QComboBox::NoInsert);
    events->setMinimumContentsLength(16);
    events->setCompleter(nullptr);
    events->installEventFilter(this);
    events->lineEdit()->installEventFilter(this);
  }
  Command10_ = Named(new QPushButton(this), "Command10");
  Command9_ = Named(new QPushButton(this), "Command9");
  Label6_ = Named(new QLabel(this), "Label6");
  spritetxt_ = Named(new QLineEdit(this), "spritetxt");
  Label8_ = Named(new QLabel(this), "Label8");
  scriptpointxt_ = Named(new QLineEdit(this), "scriptpointxt");
  Command6_ = Named(new QPushButton(this), "Command6");
  frlgl_ = Named(new QPushButton(this), "frlgl");
  Label9_ = Named(new QLabel(this), "Label9");
  flagtxt_ = Named(new QLineEdit(this), "flagtxt");
  Label7_ = Named(new QLabel(this), "Label7");
  Combo2_ = Named(new QComboBox(this), "Combo2");
  Combo2_->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // every movement type shows whole
  Label13_ = Named(new QLabel(this), "Label13");
  Combo1_ = Named(new QComboBox(this), "Combo1");
  Combo1_->setMinimumContentsLength(18);
  Combo1_->setMaxVisibleItems(20);
  Text1_ = Named(new QLineEdit(this), "Text1");
  hoobla_ = Named(new QLineEdit(this), "hoobla");
  Label12_ = Named(new QLabel(this), "Label12");
  Text2_ = Named(new QLineEdit(this), "Text2");
  hoobla2_ = Named(new QLineEdit(this), "hoobla2");
  Label11_ = Named(new QLabel(this), "Label11");
  hdtxt_ = Named(new QLabel(this), "hdtxt");
  Label18_ = Named(new QLabel(this), "Label18");
  Text3_ = Named(new QLineEdit(this), "Text3");
  Command2_ = Named(new QPushButton(this), "Command2");
  Check1_ = Named(new QCheckBox(this), "Check1");
  Command8_ = Named(new QPushButton(this), "Command8");
  Text4_ = Named(new LinedTextBoxWidget(this), "Text4");
  Text4_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  Text4_->setMinimumHeight(220);
  Text4_->EnableLineNumbers(true, 4);

  for (QLineEdit* word : {spritetxt_, flagtxt_, Text1_, hoobla_, Text2_, hoobla2_}) FitNumber(word, NumberText::Word);
  FitNumber(scriptpointxt_, NumberText::Offset);
  FitNumber(Text3_, NumberText::Offset);
  for (QLabel* label : {Label6_, Label8_, Label9_, Label7_, Label13_, Label12_}) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }

  // Top row: the three picture buttons.
  auto* top = new QHBoxLayout;
  top->addWidget(Image3_);
  top->addWidget(Image4_);
  top->addWidget(Image5_);
  top->addStretch();

  // The event workspace beside the picture.
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(8);
  fields->addWidget(OnePlace(this, {Combo3_, Combo4_, Combo5_}), 0, 0, 1, 4);
  auto* loadSave = new QHBoxLayout;
  // A row inside a grid whose two spacings differ gets none of its own: the style's, as between
  // any two buttons of a row.
  loadSave->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
  loadSave->addWidget(Command10_);
  loadSave->addWidget(Command9_);
  fields->addLayout(loadSave, 0, 4);
  fields->addWidget(Label6_, 1, 0);
  fields->addWidget(spritetxt_, 1, 1);
  fields->addWidget(Label8_, 1, 2);
  fields->addWidget(scriptpointxt_, 1, 3);
  fields->addWidget(OnePlace(this, {Command6_, frlgl_}), 1, 4);
  fields->addWidget(Label9_, 2, 0);
  fields->addWidget(flagtxt_, 2, 1);
  fields->addWidget(Label7_, 3, 0);
  fields->addWidget(Combo2_, 3, 1, 1, 4);
  fields->addWidget(Label13_, 4, 0);
  // Text1 and hoobla lie under the species list, which covers them.
  fields->addWidget(OnePlace(this, {Text1_, hoobla_, Combo1_}), 4, 1, 1, 2);
  fields->addWidget(Label12_, 4, 3, Qt::AlignRight);
  fields->addWidget(OnePlace(this, {Text2_, hoobla2_}), 4, 4);
  fields->setRowStretch(5, 1);

  auto* romCode = Named(new QFrame(this), "RomCodeBox");
  romCode->setFrameShape(QFrame::Box);
  romCode->setFrameShadow(QFrame::Sunken);
  auto* romCodeRow = new QHBoxLayout(romCode);
  romCodeRow->setContentsMargins(8, 3, 8, 3);
  romCodeRow->addWidget(Label11_);
  romCodeRow->addWidget(hdtxt_);
  fields->addWidget(romCode, 6, 3, 1, 2, Qt::AlignRight);

  auto* workspace = new QHBoxLayout;
  workspace->addWidget(Image6_, 0, Qt::AlignTop);
  workspace->addSpacing(6);
  workspace->addLayout(fields, 1);

  // The script lister.
  auto* lister = new QHBoxLayout;
  lister->addWidget(Label18_);
  lister->addWidget(Text3_);
  lister->addWidget(Command2_);
  lister->addWidget(Check1_);
  lister->addStretch();
  lister->addWidget(Command8_);

  auto* window = new QVBoxLayout(this);
  window->setContentsMargins(12, 10, 12, 12);
  window->addLayout(top);
  window->addSpacing(4);
  window->addLayout(workspace);
  window->addSpacing(8);
  window->addLayout(lister);
  window->addWidget(Text4_, 1);
  window->setSizeConstraint(QLayout::SetFixedSize);  // the window keeps the size of what it holds

  // Keyboard order: top to bottom, left to right, as the rows read.
  QWidget* const order[] = {Image3_,  Image4_,  Image5_,    Combo3_,        Combo4_,   Combo5_, Command10_,
                            Command9_, spritetxt_, scriptpointxt_, Command6_, frlgl_,  flagtxt_,
                            Combo2_,  Combo1_,  Text2_,     hoobla2_,       Text3_,    Command2_, Check1_,
                            Command8_, Text4_};
  for (std::size_t i = 1; i < std::size(order); ++i) {
    QWidget::setTabOrder(order[i - 1], order[i]);
  }
}

void Form1Window::Connect() {
  Form1& f = shell_.form1();

  connect(Image3_, &QAbstractButton::clicked, this,
          [this] { shell_.Run([this] { OpenRom(shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Image4_, &QAbstractButton::clicked, this, [this] {
    const QPoint at = Image4_->underMouse() ? QCursor::pos() : Image4_->mapToGlobal(QPoint(0, Image4_->height()));
    Image4_->setDown(true);  // the pressed face while the menu is open
    PopUpToolsMenu(at);
    Image4_->setDown(false);
  });
  // Keys: Ctrl+O presses Open and Alt+T presses Tools, as a click does; their tooltips say so.
  const std::tuple<ImageButton*, QKeySequence, const char*> keys[] = {
      {Image3_, QKeySequence::Open, "Opens a ROM"}, {Image4_, QKeySequence(Qt::ALT | Qt::Key_T), "The menu of tools"}};
  for (const auto& [button, key, tip] : keys) {
    connect(new QShortcut(key, this), &QShortcut::activated, button, &QAbstractButton::click);
    button->setToolTip(QString("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
  }
  connect(Image5_, &QAbstractButton::clicked, this, [this] { shell_.Run([this] { shell_.ShowWindow(WindowName::frmAbout); }); });

  connect(Combo3_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo3Selection(shell_.form1(), shell_.rom(), shell_.dialogs(), i); }); });
  connect(Combo4_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo4Selection(shell_.form1(), shell_.rom(), shell_.dialogs(), i); }); });
  connect(Combo5_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo5Selection(shell_.form1(), shell_.rom(), shell_.dialogs(), i); }); });
  connect(Combo3_, &QComboBox::editTextChanged, this, [&f](const QString& t) { f.Combo3.text = t.toStdString(); });
  connect(Combo4_, &QComboBox::editTextChanged, this, [&f](const QString& t) { f.Combo4.text = t.toStdString(); });
  connect(Combo5_, &QComboBox::editTextChanged, this, [&f](const QString& t) { f.Combo5.text = t.toStdString(); });
  connect(Combo2_, &QComboBox::activated, this, [this](int i) { shell_.Run([this, i] { SetCombo2Selection(shell_.form1(), i); }); });
  connect(Combo1_, &QComboBox::activated, this, [this](int i) { shell_.Run([this, i] { SetCombo1Selection(shell_.form1(), i); }); });

  connect(Command10_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { LoadPerson(shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Command9_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { SavePerson(shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Command2_, &QPushButton::clicked, this, [this] {
    shell_.Run([this] {
      QtListingProgress progress(this);  // shows itself only for a listing that takes a while
      ListIntoText4(shell_.form1(), shell_.rom(), shell_.dialogs(), progress.Callback());
    });
  });
  for (QPushButton* load : {Command6_, frlgl_}) {
    connect(load, &QPushButton::clicked, this,
            [this] { shell_.Run([this] { LoadEventWords(shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  }

  // Typing only changes the field; nothing runs until a button is pressed.
  const std::pair<QLineEdit*, TextBox*> edits[] = {{spritetxt_, &f.spritetxt}, {scriptpointxt_, &f.scriptpointxt},
                                                   {flagtxt_, &f.flagtxt},     {Text1_, &f.Text1},
                                                   {hoobla_, &f.hoobla},       {Text2_, &f.Text2},
                                                   {hoobla2_, &f.hoobla2},     {Text3_, &f.Text3}};
  for (const auto& [widget, box] : edits) {
    connect(widget, &QLineEdit::textEdited, this, [box = box](const QString& t) { box->text = t.toStdString(); });
  }
  connect(Check1_, &QCheckBox::toggled, this, [&f](bool checked) { f.Check1.checked = checked; });
  WireEnter(this);  // Enter in a field moves on; only the buttons load, save and list
}

void Form1Window::Refresh() {
  const Form1& f = shell_.form1();
  // The controls whose changes run actions stay quiet while they take the record's values.
  QObject* const controls[] = {Combo3_, Combo4_, Combo5_, Combo2_,  Combo1_, spritetxt_, scriptpointxt_,
                               flagtxt_, Text1_, hoobla_, Text2_,   hoobla2_, Text3_,  Check1_};
  std::vector<std::unique_ptr<QSignalBlocker>> blockers;
  for (QObject* control : controls) blockers.push_back(std::make_unique<QSignalBlocker>(control));

  setWindowTitle(Q(f.title));
  Sync(Image3_->label(), f.Label15);
  Sync(Image4_->label(), f.Label16);
  Sync(Image5_->label(), f.Label17);
  combo3_(Combo3_, f.Combo3);
  combo4_(Combo4_, f.Combo4);
  combo5_(Combo5_, f.Combo5);
  Sync(Command10_, f.Command10);
  Sync(Command9_, f.Command9);
  Sync(Label6_, f.Label6);
  Sync(spritetxt_, f.spritetxt);
  Sync(Label8_, f.Label8);
  Sync(scriptpointxt_, f.scriptpointxt);
  Sync(Command6_, f.Command6);
  Sync(frlgl_, f.frlgl);
  Sync(Label9_, f.Label9);
  Sync(flagtxt_, f.flagtxt);
  Sync(Label7_, f.Label7);
  combo2_(Combo2_, f.Combo2);
  Sync(Label13_, f.Label13);
  combo1_(Combo1_, f.Combo1);
  Sync(Text1_, f.Text1);
  Sync(hoobla_, f.hoobla);
  Sync(Label12_, f.Label12);
  Sync(Text2_, f.Text2);
  Sync(hoobla2_, f.hoobla2);
  Sync(Label11_, f.Label11);
  Sync(hdtxt_, f.hdtxt);
  Sync(Label18_, f.Label18);
  Sync(Text3_, f.Text3);
  Sync(Command2_, f.Command2);
  Check1_->setText(Q(f.Check1.caption));
  Check1_->setChecked(f.Check1.checked);
  Sync(Command8_, f.Command8);
  // Text4 takes each text that the program puts there whole, also one equal to the text
  // before; what a person types there stays until then, since nothing reads it back.
  if (shownText4Puts_ != f.Text4.puts) {
    Text4_->ShowPlainText(f.Text4.text);
    shownText4Puts_ = f.Text4.puts;
  }
}

void Form1Window::PopUpToolsMenu(const QPoint& at) {
  QMenu menu(this);
  menu.setObjectName("mnuptro");
  menu.setTitle(Q(shell_.form7().mnuptroCaption));
  for (const MenuItem& item : shell_.form7().mnuptro) {
    QAction* action = menu.addAction(Q(item.caption));
    action->setEnabled(item.enabled);
    const MenuEntry entry = item.entry;
    connect(action, &QAction::triggered, this, [this, entry] {
      shell_.Run([this, entry] { RunMenuEntry(entry, shell_.session(), shell_.dialogs()); });
    });
  }
  menu.exec(at);
}

void Form1Window::paintEvent(QPaintEvent*) {
  if (background_.size() != size()) background_ = BackgroundPicture(size());
  QPainter(this).drawPixmap(0, 0, background_);
}

void Form1Window::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    PopUpToolsMenu(event->globalPosition().toPoint());
    return;
  }
  QWidget::mousePressEvent(event);
}

void Form1Window::mouseMoveEvent(QMouseEvent* event) {
  // The window follows the mouse dragged over its background with the left button.
  if (event->buttons() == Qt::LeftButton && windowHandle() != nullptr) {
    windowHandle()->startSystemMove();
    return;
  }
  QWidget::mouseMoveEvent(event);
}

bool Form1Window::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::DragEnter && static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls()) {
    event->ignore();  // not the field's: it goes on to the window
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    bool eventList = false;
    for (QComboBox* events : {Combo3_, Combo4_, Combo5_}) {
      eventList = eventList || watched == events || watched == events->lineEdit();
    }
    if (eventList && (key == Qt::Key_Return || key == Qt::Key_Enter)) return true;
  }
  return QWidget::eventFilter(watched, event);
}

namespace {

// Every drag is taken as a copy, so that what cannot be opened reaches the drop and is refused
// with a sentence, and the program it comes from never deletes what it gave. A drag that offers
// no copy (only a move) is refused at once: asked for a copy, Qt would answer with the move.
bool TakenAsCopy(QDropEvent* event) {
  const bool copy = event->possibleActions().testFlag(Qt::CopyAction);
  event->setDropAction(copy ? Qt::CopyAction : Qt::IgnoreAction);
  event->setAccepted(copy);
  return copy;
}

}  // namespace

void Form1Window::dragEnterEvent(QDragEnterEvent* event) { TakenAsCopy(event); }

void Form1Window::dragMoveEvent(QDragMoveEvent* event) { TakenAsCopy(event); }

void Form1Window::dropEvent(QDropEvent* event) {
  if (!TakenAsCopy(event)) return;
  Dropped dropped;
  const QMimeData* data = event->mimeData();
  for (const QUrl& url : data->urls()) {
    if (url.isLocalFile()) {
      dropped.paths.push_back(url.toLocalFile().toStdString());
    } else {
      dropped.others.push_back(url.toString().toStdString());
    }
  }
  if (data->urls().isEmpty() && !data->text().isEmpty()) dropped.others.push_back(data->text().toStdString());
  if (!TakesDrop(dropped)) {
    event->setDropAction(Qt::IgnoreAction);  // refused: the source keeps what was dragged
    event->ignore();
  }
  // The program that the drop came from waits until the drop ends: the open, and whatever
  // it asks, runs after that.
  QMetaObject::invokeMethod(
      this,
      [this, dropped] {
        shell_.Run([this, &dropped] { OpenDropped(shell_.form1(), shell_.rom(), shell_.dialogs(), dropped); });
      },
      Qt::QueuedConnection);
}

void Form1Window::closeEvent(QCloseEvent* event) {
  event->accept();
  shell_.End();
}

}  // namespace tessarine
