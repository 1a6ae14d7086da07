#include "qt/Form8Window.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cmath>

#include "flyland/Form8.h"
#include "flyland/MapImages.h"
#include "flyland/MapView.h"
#include "qt/ControlSync.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"
#include "qt/WingfallArtwork.h"

namespace tessarine {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// The rows change only when the window opens on English Emerald, whose list names two records
// its own way; what changes at every action is the row on show and, with none, the text shown.
void Sync(QComboBox* widget, const ComboBox& combo) {
  QStringList rows;
  for (const std::string& row : combo.rows) rows << Q(row);
  QStringList shown;
  for (int i = 0; i < widget->count(); ++i) shown << widget->itemText(i);
  if (shown != rows) {
    widget->clear();
    widget->addItems(rows);
  }
  widget->setPlaceholderText(Q(combo.text));
  if (widget->currentIndex() != combo.selected) widget->setCurrentIndex(combo.selected);
  widget->setEnabled(combo.enabled);
  widget->setVisible(combo.visible);
}

void Sync(QLabel* widget, const Marker& marker) {
  widget->move(marker.Left, marker.Top);
  widget->setVisible(marker.visible);
}

void Sync(QScrollBar* widget, const ScrollBar& bar) {
  widget->setRange(0, bar.Max);
  widget->setValue(bar.Value);
}

// The pixel the pointer stands in. On a scaled desktop a position falls between pixels, and
// it lies in the one left of and above it: rounding would give the next tile at its edge.
QPoint PixelAt(const QPointF& at) {
  return {static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
}

QLabel* MarkerLabel(QWidget* surface, const char* name, const QPixmap& picture) {
  auto* marker = Named(new QLabel(surface), name);
  marker->setPixmap(picture);
  marker->setFixedSize(picture.size());
  marker->setAttribute(Qt::WA_TransparentForMouseEvents);
  return marker;
}

}  // namespace

MapSurfaceWidget::MapSurfaceWidget(QWidget* parent, PointerAction moved, PointerAction pressed)
    : QWidget(parent), moved_(std::move(moved)), pressed_(std::move(pressed)) {
  setMouseTracking(true);
  setAutoFillBackground(true);
  setCursor(Qt::CrossCursor);
}

void MapSurfaceWidget::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void MapSurfaceWidget::paintEvent(QPaintEvent*) { QPainter(this).drawImage(0, 0, picture_); }

void MapSurfaceWidget::mouseMoveEvent(QMouseEvent* event) { moved_(PixelAt(event->position())); }

void MapSurfaceWidget::mousePressEvent(QMouseEvent* event) { pressed_(PixelAt(event->position())); }

Form8Window::Form8Window(QtShell& shell, Form8& form) : shell_(shell), form_(form) {
  setObjectName("Form8");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowIcon(ApplicationIcon());
  BuildWidgets();
  Connect();
  Refresh();
}

void Form8Window::BuildWidgets() {
  Label1_ = Named(new QLabel(this), "Label1");
  kanto_ = Named(new QComboBox(this), "kanto");
  hoenn_ = Named(new QComboBox(this), "hoenn");
  for (QComboBox* list : {kanto_, hoenn_}) {
    list->setMinimumContentsLength(20);
    list->setMaxVisibleItems(20);
  }
  Label1_->setBuddy(hoenn_);
  loadbutton_ = Named(new QPushButton(this), "loadbutton");
  savebutton_ = Named(new QPushButton(this), "savebutton");
  BL_ = Named(new QLabel(this), "BL");
  LB_ = Named(new QLabel(this), "LB");
  BL_->setEnabled(false);  // greyed: bank and level are shown, not edited
  LB_->setEnabled(false);
  XXtCaption_ = Named(new QLabel(this), "XXtCaption");
  XXt_ = Named(new QLineEdit(this), "XXt");
  YYtCaption_ = Named(new QLabel(this), "YYtCaption");
  YYt_ = Named(new QLineEdit(this), "YYt");
  XXtCaption_->setBuddy(XXt_);
  YYtCaption_->setBuddy(YYt_);

  Picture1_ = Named(new QFrame(this), "Picture1");
  Picture1_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  Picture1_->setLineWidth(2);
  Picture1_->setFixedSize(kViewportWidth, kViewportHeight);
  viewport_ = Named(new QWidget(Picture1_), "Picture1Inside");
  viewport_->setGeometry(Picture1_->contentsRect());
  viewport_->setAutoFillBackground(true);
  viewport_->setBackgroundRole(QPalette::Dark);
  Picture2_ = new MapSurfaceWidget(
      viewport_, [this](QPoint at) { shell_.Run([this, at] { PointerMoved(form_, at.x(), at.y()); }); },
      [this](QPoint at) { shell_.Run([this, at] { PointerPressed(form_, at.x(), at.y()); }); });
  Picture2_->setObjectName("Picture2");
  Shape2_ = MarkerLabel(Picture2_, "Shape2", BoxMarker(palette().color(QPalette::WindowText)));
  Image1_ = MarkerLabel(Picture2_, "Image1", BirdIcon());
  Shape1_ = MarkerLabel(Picture2_, "Shape1", BoxMarker(Qt::red));
  HScroll1_ = Named(new QScrollBar(Qt::Horizontal, this), "HScroll1");
  VScroll1_ = Named(new QScrollBar(Qt::Vertical, this), "VScroll1");
  for (QScrollBar* bar : {HScroll1_, VScroll1_}) bar->setPageStep(5);

  Command2_ = Named(new QPushButton(this), "Command2");
  Command1_ = Named(new QPushButton(this), "Command1");
  Label5_ = Named(new QLabel(this), "Label5");
  Label6_ = Named(new QLabel(this), "Label6");
  Text1_ = Named(new QLineEdit(this), "Text1");
  Label7_ = Named(new QLabel(this), "Label7");
  Text2_ = Named(new QLineEdit(this), "Text2");
  Label6_->setBuddy(Text1_);
  Label7_->setBuddy(Text2_);
  Label2_ = Named(new QLabel(this), "Label2");
  Label2_->setWordWrap(true);
  for (QLineEdit* tile : {XXt_, YYt_}) FitNumber(tile, NumberText::Byte);
  for (QLineEdit* size : {Text1_, Text2_}) FitNumber(size, NumberText::Word);  // a map size in tiles

  auto* record = new QGridLayout;
  record->addWidget(Label1_, 0, 0);
  record->addWidget(kanto_, 0, 1, 1, 4);  // the two lists stand in one place
  record->addWidget(hoenn_, 0, 1, 1, 4);
  record->addWidget(loadbutton_, 0, 5);
  record->addWidget(savebutton_, 0, 6);
  auto* landing = new QHBoxLayout;
  landing->addWidget(BL_);
  landing->addSpacing(12);
  landing->addWidget(LB_);
  landing->addStretch();
  landing->addWidget(XXtCaption_);
  landing->addWidget(XXt_);
  landing->addSpacing(12);
  landing->addWidget(YYtCaption_);
  landing->addWidget(YYt_);
  record->addLayout(landing, 1, 1, 1, 6);

  auto* map = new QGridLayout;
  map->setSpacing(0);
  map->addWidget(Picture1_, 0, 0);
  map->addWidget(VScroll1_, 0, 1);
  map->addWidget(HScroll1_, 1, 0);

  auto* pictures = new QVBoxLayout;
  pictures->addWidget(Command2_);
  pictures->addWidget(Command1_);
  pictures->addSpacing(12);
  pictures->addWidget(Label5_);
  auto* size = new QGridLayout;
  size->addWidget(Label6_, 0, 0);
  size->addWidget(Text1_, 0, 1);
  size->addWidget(Label7_, 1, 0);
  size->addWidget(Text2_, 1, 1);
  size->setColumnStretch(2, 1);
  pictures->addLayout(size);
  pictures->addStretch();

  auto* middle = new QHBoxLayout;
  middle->addLayout(map);
  middle->addSpacing(10);
  middle->addLayout(pictures);

  auto* window = new QVBoxLayout(this);
  window->setContentsMargins(12, 10, 12, 12);
  window->addLayout(record);
  window->addSpacing(6);
  window->addLayout(middle);
  window->addWidget(Label2_);
  window->setSizeConstraint(QLayout::SetFixedSize);

  QWidget* const order[] = {kanto_, hoenn_,   loadbutton_, savebutton_, XXt_,      YYt_,
                            HScroll1_, VScroll1_, Command2_, Command1_, Text1_, Text2_};
  for (std::size_t i = 1; i < std::size(order); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void Form8Window::Connect() {
  // The game code is the main window's of the moment, read at each load and save.
  const std::pair<QComboBox*, FlyList> lists[] = {{kanto_, FlyList::kanto},
                                                           {hoenn_, FlyList::hoenn}};
  for (const auto& [widget, list] : lists) {
    connect(widget, &QComboBox::activated, this, [this, list = list](int i) {
      shell_.Run([this, list, i] { SelectLocation(form_, shell_.rom(), shell_.form1(), list, i); });
    });
  }
  connect(loadbutton_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressLoadbutton(form_, shell_.rom(), shell_.form1()); }); });
  connect(savebutton_, &QPushButton::clicked, this, [this] {
    shell_.Run([this] { PressSavebutton(form_, shell_.rom(), shell_.form1(), shell_.dialogs()); });
  });
  // The landing tile is typed freely; only Save writes it (Enter in a field moves on).
  connect(XXt_, &QLineEdit::textEdited, this, [this](const QString& t) { form_.XXt.text = t.toStdString(); });
  connect(YYt_, &QLineEdit::textEdited, this, [this](const QString& t) { form_.YYt.text = t.toStdString(); });
  WireEnter(this);

  const std::pair<QLineEdit*, MapSizeField> sizes[] = {{Text1_, MapSizeField::Text1}, {Text2_, MapSizeField::Text2}};
  for (const auto& [widget, field] : sizes) {
    connect(widget, &QLineEdit::textEdited, this, [this, field = field](const QString& t) {
      shell_.Run([this, field, text = t.toStdString()] { SetMapSizeText(form_, field, text); });
    });
  }
  const std::pair<QScrollBar*, ScrollBarName> bars[] = {{HScroll1_, ScrollBarName::HScroll1},
                                                        {VScroll1_, ScrollBarName::VScroll1}};
  for (const auto& [widget, bar] : bars) {
    connect(widget, &QScrollBar::valueChanged, this,
            [this, bar = bar](int value) { shell_.Run([this, bar, value] { SetScrollValue(form_, bar, value); }); });
  }
  connect(Command2_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { LoadMapImageFile(form_, shell_.dialogs(), pictures_); }); });
  connect(Command1_, &QPushButton::clicked, this, [this] { shell_.Run([this] { PasteMapImage(form_, pictures_); }); });
  CloseOnEscape(this);
}

void Form8Window::Refresh() {
  const QSignalBlocker blocks[] = {QSignalBlocker(kanto_),    QSignalBlocker(hoenn_), QSignalBlocker(XXt_),
                                   QSignalBlocker(YYt_),      QSignalBlocker(Text1_), QSignalBlocker(Text2_),
                                   QSignalBlocker(HScroll1_), QSignalBlocker(VScroll1_)};
  setWindowTitle(Q(form_.title));
  Sync(Label1_, form_.Label1);
  Sync(kanto_, form_.kanto);
  Sync(hoenn_, form_.hoenn);
  Sync(loadbutton_, form_.loadbutton);
  Sync(savebutton_, form_.savebutton);
  Sync(BL_, form_.BL);
  Sync(LB_, form_.LB);
  Sync(XXtCaption_, form_.XXtCaption);
  Sync(XXt_, form_.XXt);
  Sync(YYtCaption_, form_.YYtCaption);
  Sync(YYt_, form_.YYt);

  const MapSurface& surface = form_.Picture2;
  if (shownPicture_ != surface.pictureNumber) {
    Picture2_->SetPicture(surface.picture == MapPicture::Brought ? pictures_.brought()
                                                                  : TownMapPicture(surface.picture));
    shownPicture_ = surface.pictureNumber;
  }
  Picture2_->setGeometry(surface.Left, surface.Top, surface.Width, surface.Height);
  Sync(Shape2_, form_.Shape2);
  Sync(Image1_, form_.Image1);
  Sync(Shape1_, form_.Shape1);
  Sync(HScroll1_, form_.HScroll1);
  Sync(VScroll1_, form_.VScroll1);

  Sync(Command2_, form_.Command2);
  Sync(Command1_, form_.Command1);
  Sync(Label5_, form_.Label5);
  Sync(Label6_, form_.Label6);
  Sync(Text1_, form_.Text1);
  Sync(Label7_, form_.Label7);
  Sync(Text2_, form_.Text2);
  Sync(Label2_, form_.Label2);
}

}  // namespace tessarine
