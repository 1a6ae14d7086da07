#include "qt/Form6Window.h"

#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>
#include <cstdint>

#include "braille/Form6.h"
#include "qt/ControlSync.h"
#include "qt/QtArtwork.h"
#include "qt/QtPictures.h"
#include "qt/QtShell.h"

namespace tessarine {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// A block of Text1 that goes on the line of the block before it (TextPieces).
constexpr int kContinuesLine = 1;

// Text1's box, which holds a long line in several blocks: what it gives as its text, and what
// it copies or drags, has the line breaks of the record only, not those between the blocks.
class BrailleTextBox : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  // The text from position `from` to `to` of the box, CR LF between its lines.
  std::string Text(int from, int to) const {
    std::vector<std::string> texts;
    std::vector<bool> continues;
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
      const int start = std::max(from, block.position()) - block.position();
      const int end = std::min(to, block.position() + block.length() - 1) - block.position();
      texts.push_back(block.text().mid(start, std::max(end - start, 0)).toStdString());
      continues.push_back(texts.size() > 1 && block.userState() == kContinuesLine);
    }
    std::vector<TextPiece> pieces;
    for (std::size_t i = 0; i < texts.size(); ++i) pieces.push_back({texts[i], continues[i]});
    return TextOfPieces(pieces);
  }

 protected:
  QMimeData* createMimeDataFromSelection() const override {
    const QTextCursor cursor = textCursor();
    auto* data = new QMimeData;
    data->setText(Q(Text(cursor.selectionStart(), cursor.selectionEnd())).replace("\r\n", "\n"));
    return data;
  }
};

// Pixels far enough outside the preview that an edge there is never seen: a frame's edge
// placed further out is drawn there, so that no widget takes a size Qt cannot hold.
constexpr std::int64_t kFarOutside = 4096;
int Near(std::int64_t pixels) { return static_cast<int>(std::clamp(pixels, -kFarOutside, kFarOutside)); }

// The braille text starts at most this far from the picture, or is not drawn: from further
// away no line of a text that a person types reaches the picture.
constexpr int kTextReach = 1 << 20;

// The font that draws the braille cells: it has the braille patterns.
QFont BrailleFont() {
  QFont font("DejaVu Sans");
  font.setPointSizeF(14.25);
  return font;
}

}  // namespace

Form6Window::Form6Window(QtShell& shell, Form6& form) : shell_(shell), form_(form) {
  setObjectName("Form6");
  setAttribute(Qt::WA_DeleteOnClose);  // closing drops the window; it loads afresh next time
  setWindowIcon(ApplicationIcon());
  BuildWidgets();
  Connect();
  Refresh();
}

void Form6Window::BuildWidgets() {
  Label14_ = Named(new QLabel(this), "Label14");
  QFont titleFont = Label14_->font();
  titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
  titleFont.setBold(true);
  Label14_->setFont(titleFont);
  Label9_ = Named(new QLabel(this), "Label9");
  Text1_ = Named(new BrailleTextBox(this), "Text1");
  Text1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  Text1_->setTabChangesFocus(true);
  Text1_->setFixedSize(300, 120);
  Label10_ = Named(new QLabel(this), "Label10");
  Label10_->setWordWrap(true);
  Label10_->setFixedWidth(300);
  Label8_ = Named(new QLabel(this), "Label8");
  Text2_ = Named(new QLineEdit(this), "Text2");
  Label11_ = Named(new QLabel(this), "Label11");
  Text3_ = Named(new QLineEdit(this), "Text3");
  Label2_ = Named(new QLabel(this), "Label2");
  postionleft_ = Named(new QLineEdit(this), "postionleft");
  Label3_ = Named(new QLabel(this), "Label3");
  postiontop_ = Named(new QLineEdit(this), "postiontop");
  Label4_ = Named(new QLabel(this), "Label4");
  msgboxleft_ = Named(new QLineEdit(this), "msgboxleft");
  Label5_ = Named(new QLabel(this), "Label5");
  msgboxtop_ = Named(new QLineEdit(this), "msgboxtop");
  Label6_ = Named(new QLabel(this), "Label6");
  brailleleft_ = Named(new QLineEdit(this), "brailleleft");
  Label7_ = Named(new QLabel(this), "Label7");
  brailletop_ = Named(new QLineEdit(this), "brailletop");
  Command1_ = Named(new QPushButton(this), "Command1");
  Command2_ = Named(new QPushButton(this), "Command2");
  Command3_ = Named(new QPushButton(this), "Command3");
  Command4_ = Named(new QPushButton(this), "Command4");
  Command5_ = Named(new QPushButton(this), "Command5");
  for (QLineEdit* field : {Text2_, Text3_}) FitNumber(field, NumberText::Offset);
  Command6_ = Named(new QPushButton(this), "Command6");
  Command7_ = Named(new QPushButton(this), "Command7");
  for (QLineEdit* field : {postionleft_, postiontop_, msgboxleft_, msgboxtop_, brailleleft_, brailletop_}) {
    FitNumber(field, NumberText::Byte);
  }
  for (QLabel* label : {Label8_, Label11_, Label2_, Label3_, Label4_, Label5_, Label6_, Label7_}) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
  Label8_->setBuddy(Text2_);
  Label11_->setBuddy(Text3_);

  // The preview: the picture, the frame on it, the braille text over both.
  Picture1_ = Named(new QLabel(this), "Picture1");
  Picture1_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Picture1_->setPixmap(BrailleScreenshotPicture());
  Shape1_ = Named(new QFrame(Picture1_), "Shape1");
  Shape1_->setStyleSheet("QFrame#Shape1 { border: 2px solid #FFE14D; background: transparent; }");
  Shape1_->setAttribute(Qt::WA_TransparentForMouseEvents);
  Label1_ = Named(new QLabel(Picture1_), "Label1");
  Label1_->setTextFormat(Qt::PlainText);
  Label1_->setFont(BrailleFont());
  Label1_->setStyleSheet("QLabel#Label1 { color: #1A1410; background: transparent; }");  // dark on any theme
  Label1_->setAttribute(Qt::WA_TransparentForMouseEvents);
  Label1_->raise();
  auto* previewFrame = Named(new QFrame(this), "PreviewFrame");
  previewFrame->setFrameShape(QFrame::Box);
  previewFrame->setFrameShadow(QFrame::Sunken);
  auto* previewBox = new QVBoxLayout(previewFrame);
  previewBox->setContentsMargins(1, 1, 1, 1);
  previewBox->addWidget(Picture1_);

  auto* offsets = new QGridLayout;
  offsets->addWidget(Label8_, 0, 0);
  offsets->addWidget(Text2_, 0, 1);
  offsets->addWidget(Command6_, 0, 2);
  offsets->addWidget(Label11_, 1, 0);
  offsets->addWidget(Text3_, 1, 1);
  offsets->addWidget(Command7_, 1, 2);
  offsets->setColumnStretch(3, 1);

  auto* header = new QGridLayout;
  const std::pair<QLabel*, QLineEdit*> fields[] = {{Label2_, postionleft_}, {Label3_, postiontop_},
                                                   {Label4_, msgboxleft_},  {Label5_, msgboxtop_},
                                                   {Label6_, brailleleft_}, {Label7_, brailletop_}};
  for (int i = 0; i < 6; ++i) {
    header->addWidget(fields[i].first, i / 2, i % 2 * 2);
    header->addWidget(fields[i].second, i / 2, i % 2 * 2 + 1);
    fields[i].first->setBuddy(fields[i].second);
  }

  auto* actions = new QHBoxLayout;
  for (QPushButton* button : {Command1_, Command2_, Command3_, Command4_}) actions->addWidget(button);

  auto* left = new QVBoxLayout;
  left->addWidget(Label9_);
  left->addWidget(Text1_);
  left->addWidget(Label10_);
  left->addSpacing(6);
  left->addLayout(offsets);
  left->addSpacing(6);
  left->addLayout(header);
  left->addStretch();
  left->addLayout(actions);

  auto* right = new QVBoxLayout;
  right->addWidget(previewFrame);
  right->addWidget(Command5_, 0, Qt::AlignRight);
  right->addStretch();

  auto* body = new QHBoxLayout;
  body->addLayout(left);
  body->addSpacing(12);
  body->addLayout(right);

  auto* window = new QVBoxLayout(this);
  window->setContentsMargins(14, 10, 14, 14);
  window->addWidget(Label14_);
  window->addLayout(body);
  window->setSizeConstraint(QLayout::SetFixedSize);

  // As the window reads: each Find Free Space after its offset.
  QWidget* const order[] = {Text1_,       Text2_,      Command6_,   Text3_,     Command7_,    postionleft_,
                            postiontop_,  msgboxleft_, msgboxtop_,  brailleleft_, brailletop_, Command1_,
                            Command2_,    Command3_,   Command4_,   Command5_};
  for (std::size_t i = 1; i < std::size(order); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void Form6Window::Connect() {
  connect(Text1_, &QPlainTextEdit::textChanged, this, [this] {
    shownText1_ = TypedText1();
    shell_.Run([this] { SetText1(form_, shownText1_); });
  });
  connect(brailleleft_, &QLineEdit::textEdited, this,
          [this](const QString& t) { shell_.Run([this, t] { SetBrailleLeft(form_, t.toStdString()); }); });
  connect(brailletop_, &QLineEdit::textEdited, this,
          [this](const QString& t) { shell_.Run([this, t] { SetBrailleTop(form_, t.toStdString()); }); });
  // The other fields only hold their text until a button reads it.
  const std::pair<QLineEdit*, TextBox*> edits[] = {{Text2_, &form_.Text2},          {Text3_, &form_.Text3},
                                                   {postionleft_, &form_.postionleft}, {postiontop_, &form_.postiontop},
                                                   {msgboxleft_, &form_.msgboxleft},   {msgboxtop_, &form_.msgboxtop}};
  for (const auto& [widget, box] : edits) {
    connect(widget, &QLineEdit::textEdited, this, [box = box](const QString& t) { box->text = t.toStdString(); });
  }

  connect(Command1_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressInsert(form_, shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Command2_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressLoad(form_, shell_.form1(), shell_.rom()); }); });
  connect(Command3_, &QPushButton::clicked, this, [this] { shell_.Run([this] { PressApply(form_); }); });
  connect(Command6_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindRecordSpace(form_, shell_.rom(), shell_.dialogs()); }); });
  connect(Command7_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindScriptSpace(form_, shell_.rom(), shell_.dialogs()); }); });
  connect(Command4_, &QPushButton::clicked, this, [this] { shell_.Run([this] { PressRestore(form_); }); });
  connect(Command5_, &QPushButton::clicked, this, [this] {
    shell_.Run([this] {
      PressLoadScreenshot(shell_.dialogs(), [this](const std::string& path) {
        const PictureFile picture = LoadPictureFile(Q(path));
        if (picture.image.isNull()) return picture.problem.toStdString();
        Picture1_->setPixmap(QPixmap::fromImage(picture.image));
        return std::string();
      });
    });
  });

  CloseOnEscape(this);

  // Enter in the script offset inserts (after the question); in the braille offset and the
  // layout fields it moves on, so that it neither loads over the text typed nor applies.
  WireEnter(this, Command1_, {Text3_});
}

void Form6Window::Refresh() {
  QObject* const controls[] = {Text1_,      Text2_,     Text3_,       postionleft_, postiontop_,
                               msgboxleft_, msgboxtop_, brailleleft_, brailletop_};
  std::vector<std::unique_ptr<QSignalBlocker>> blockers;
  for (QObject* control : controls) blockers.push_back(std::make_unique<QSignalBlocker>(control));

  setWindowTitle(Q(form_.title));
  Sync(Label14_, form_.Label14);
  Sync(Label9_, form_.Label9);
  if (shownText1_ != form_.Text1.text) ShowText1(form_.Text1.text);
  Sync(Label10_, form_.Label10);
  Sync(Label8_, form_.Label8);
  Sync(Text2_, form_.Text2);
  Sync(Label11_, form_.Label11);
  Sync(Text3_, form_.Text3);
  Sync(Label2_, form_.Label2);
  Sync(postionleft_, form_.postionleft);
  Sync(Label3_, form_.Label3);
  Sync(postiontop_, form_.postiontop);
  Sync(Label4_, form_.Label4);
  Sync(msgboxleft_, form_.msgboxleft);
  Sync(Label5_, form_.Label5);
  Sync(msgboxtop_, form_.msgboxtop);
  Sync(Label6_, form_.Label6);
  Sync(brailleleft_, form_.brailleleft);
  Sync(Label7_, form_.Label7);
  Sync(brailletop_, form_.brailletop);
  Sync(Command1_, form_.Command1);
  Sync(Command2_, form_.Command2);
  Sync(Command3_, form_.Command3);
  Sync(Command4_, form_.Command4);
  Sync(Command5_, form_.Command5);
  Sync(Command6_, form_.Command6);
  Sync(Command7_, form_.Command7);

  Picture1_->setFixedSize(form_.Picture1.Width, form_.Picture1.Height);
  const Shape& frame = form_.Shape1;
  const int left = Near(frame.Left), top = Near(frame.Top);
  Shape1_->setGeometry(left, top, Near(std::int64_t{frame.Left} + frame.Width) - left,
                       Near(std::int64_t{frame.Top} + frame.Height) - top);
  ShowLabel1();
}

void Form6Window::ShowText1(const std::string& text) {
  // A block a piece: a key lays out again only its own block, however long the line.
  const std::vector<TextPiece> pieces = TextPieces(text);
  QString shown;
  shown.reserve(static_cast<qsizetype>(text.size() + pieces.size()));
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) shown += QChar('\n');
    shown += QString::fromUtf8(pieces[i].text.data(), static_cast<qsizetype>(pieces[i].text.size()));
  }
  Text1_->setPlainText(shown);
  QTextBlock block = Text1_->document()->firstBlock();
  for (const TextPiece& piece : pieces) {
    block.setUserState(piece.continues ? kContinuesLine : -1);
    block = block.next();
  }
  shownText1_ = text;
}

std::string Form6Window::TypedText1() const {
  // A block that a person starts with Enter has no state, so it starts a line of its own.
  return static_cast<const BrailleTextBox*>(Text1_)->Text(0, Text1_->document()->characterCount());
}

void Form6Window::ShowLabel1() {
  // Only the cells that can fall on the picture are drawn.
  const QFontMetrics metrics(Label1_->font());
  const auto room = [](std::int64_t from, int side, int step) {
    return from >= side ? std::size_t{0} : static_cast<std::size_t>((side - from) / std::max(step, 1) + 1);
  };
  const std::size_t lines = room(form_.Label1.Top, form_.Picture1.Height, metrics.lineSpacing());
  const std::size_t cells = room(form_.Label1.Left, form_.Picture1.Width, metrics.horizontalAdvance(QChar(0x2800)));
  if (form_.Label1.caption != shownCaption_ || lines != shownLines_ || cells != shownCells_) {
    Label1_->setText(QString::fromStdString(BrailleGlyphText(form_.Label1.caption, lines, cells)));
    shownCaption_ = form_.Label1.caption;
    shownLines_ = lines;
    shownCells_ = cells;
  }
  const bool inReach = std::abs(std::int64_t{form_.Label1.Left}) <= kTextReach &&
                       std::abs(std::int64_t{form_.Label1.Top}) <= kTextReach;
  Label1_->setVisible(inReach);
  if (inReach) {
    Label1_->move(form_.Label1.Left, form_.Label1.Top);
    Label1_->adjustSize();
  }
}

void Form6Window::paintEvent(QPaintEvent*) {
  if (background_.size() != size()) background_ = BackgroundPicture(size());
  QPainter(this).drawPixmap(0, 0, background_);
}

void Form6Window::mouseMoveEvent(QMouseEvent* event) {
  // The window follows the mouse dragged over its background with the left button.
  if (event->buttons() == Qt::LeftButton && windowHandle() != nullptr) {
    windowHandle()->startSystemMove();
    return;
  }
  QWidget::mouseMoveEvent(event);
}

}  // namespace tessarine
