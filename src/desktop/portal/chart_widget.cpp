// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/chart_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/paper/chart_picture.h"
#include "desktop/paper/qt_print_target.h"
#include "desktop/style/tokens.h"
#include "platform/surroundings.h"
#include "platform/svg_print_target.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kUsualPoints = 9.75;  // of the screen's words, beside which a chart's are chosen
constexpr int kFrame = 2;
constexpr int kSavedDotsPerInch = 300;

QPolygonF PolygonOf(const ChartSpot& spot) {
  QPolygonF polygon;
  for (const PrintPoint& corner : spot.outline) polygon << QPointF(corner.x, corner.y);
  return polygon;
}

// Files and other programs get the picture as paper does: on white ground.
std::function<void(PrintTarget&)> DrawingOf(const Chart& chart, const ChartFrame& frame) {
  return [&chart, frame](PrintTarget& target) { DrawChart(chart, target, frame, kLightChart); };
}

std::string SvgOf(const Chart& chart, const ChartFrame& frame) {
  SvgPrintTarget target(frame.width, frame.height);
  DrawChart(chart, target, frame, kLightChart);
  return target.File(chart.title);
}

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent), SpokenAs(QAccessible::Chart) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ChartWidget::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 20};
}

void ChartWidget::ShowChart(const Chart* chart, unsigned revision) {
  if (chart_ == chart && revision_ == revision && chart) return;
  chart_ = chart;
  revision_ = revision;
  stale_ = true;
  current_ = -1;
  spots_.clear();
  setAccessibleDescription(IsEmpty() ? empty_text_ : FromText(chart->title));
  update();
}

void ChartWidget::SetEmptyText(const QString& text) {
  empty_text_ = text;
}

// On the sheet of every other table, in the colours and the type of its words and lines; a set that
// needs not be told from others in the one ink of the screen.
ChartColors ChartWidget::Colors() const {
  const Tokens t = TokensOf(palette());
  ChartColors colors = t.dark ? kDarkChart : kLightChart;
  const auto rgb = [](const QColor& color) { return PrintColor{color.rgb() & 0xFFFFFF}; };
  colors.ground = rgb(t.surface);
  colors.text = rgb(t.text);
  colors.grid = rgb(t.line);
  colors.thin = rgb(t.muted);
  if (chart_ && chart_->sets.size() == 1) colors.sets.front() = rgb(t.focus);
  colors.font = font_;
  return colors;
}

// All of a chart grows with the type of its window.
double ChartWidget::PixelsATwip() const {
  return logicalDpiX() / kTwipsPerInch * fontInfo().pointSizeF() / kUsualPoints;
}

ChartFrame ChartWidget::FrameInTwips() const {
  return {0, 0, width() / PixelsATwip(), height() / PixelsATwip()};
}

void ChartWidget::DrawIfChanged() {
  const QSize pixels = size() * devicePixelRatioF();
  if (!stale_ && picture_.size() == pixels) return;
  stale_ = false;
  font_ = ToText(font().family()).value_or("Arial");
  picture_ = QPixmap(pixels);
  picture_.setDevicePixelRatio(devicePixelRatioF());
  picture_.fill(QColor(Colors().ground));
  spots_.clear();
  if (picture_.isNull() || !chart_) return;
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(PixelsATwip(), PixelsATwip());
  const ChartFrame frame = FrameInTwips();
  QtPrintTarget target({frame.width, frame.height, frame.width, frame.height}, &painter);
  spots_ = DrawChart(*chart_, target, frame, Colors());
  if (current_ >= static_cast<int>(spots_.size())) current_ = -1;
}

const std::vector<ChartSpot>& ChartWidget::Spots() {
  DrawIfChanged();
  return spots_;
}

const ChartSpot* ChartWidget::CurrentSpot() const {
  return current_ < 0 ? nullptr : &spots_[static_cast<std::size_t>(current_)];
}

QPoint ChartWidget::PlaceOf(const ChartSpot& spot) const {
  return (PolygonOf(spot).boundingRect().center() * PixelsATwip()).toPoint();
}

void ChartWidget::paintEvent(QPaintEvent* /*event*/) {
  DrawIfChanged();
  QPainter painter(this);
  // The frame of lists and sheets; what lies within begins behind the room for the focus.
  QStyleOptionFrame frame;
  frame.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
  painter.setClipRect(rect().adjusted(kFrame, kFrame, -kFrame, -kFrame));
  painter.drawPixmap(0, 0, picture_);
  if (IsEmpty()) {
    painter.setPen(TokensOf(palette()).muted);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, empty_text_);
  }
  if (const ChartSpot* spot = CurrentSpot()) {
    painter.scale(PixelsATwip(), PixelsATwip());
    painter.setPen(QPen(QColor(Colors().text), 15, Qt::DashLine));
    painter.drawPolygon(PolygonOf(*spot));
  }
}

// What lies above is found first.
int ChartWidget::SpotAt(QPointF pixels) const {
  const QPointF twips = pixels / PixelsATwip();
  for (int i = static_cast<int>(spots_.size()) - 1; i >= 0; --i)
    if (PolygonOf(spots_[static_cast<std::size_t>(i)]).containsPoint(twips, Qt::OddEvenFill))
      return i;
  return -1;
}

void ChartWidget::GoTo(int spot, bool tell_beside) {
  if (spot != current_) update();
  current_ = spot;
  if (!CurrentSpot()) return;
  const QString told = FromText(TellSpot(*chart_, *CurrentSpot()));
  setAccessibleDescription(told);
  if (tell_beside) QToolTip::showText(mapToGlobal(PlaceOf(*CurrentSpot())), told, this);
}

bool ChartWidget::event(QEvent* event) {
  for (const auto change : {QEvent::PaletteChange, QEvent::FontChange, QEvent::Resize})
    stale_ = stale_ || event->type() == change;
  return QWidget::event(event);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
  DrawIfChanged();
  GoTo(SpotAt(event->position()), false);
  const QString told = CurrentSpot() ? FromText(TellSpot(*chart_, *CurrentSpot())) : QString();
  QToolTip::showText(event->globalPosition().toPoint(), told, this);
}

void ChartWidget::leaveEvent(QEvent* event) {
  if (!hasFocus()) GoTo(-1, false);
  QWidget::leaveEvent(event);
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  DrawIfChanged();
  GoTo(SpotAt(event->position()), false);
  Q_EMIT spotClicked();
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && CurrentSpot()) Q_EMIT spotDoubleClicked();
}

int ChartWidget::Beside(int step) const {
  if (spots_.empty()) return -1;
  if (current_ < 0) return 0;
  const int next = current_ + step;
  if (next < 0 || next >= static_cast<int>(spots_.size())) return current_;
  const ChartSpot& here = spots_[static_cast<std::size_t>(current_)];
  const ChartSpot& there = spots_[static_cast<std::size_t>(next)];
  const bool same_row = here.set == there.set && (here.dot < 0) == (there.dot < 0);
  return same_row ? next : current_;
}

// The nearest spot of the row above or below, a row being a set or the dots.
int ChartWidget::InOtherRow(int step) const {
  if (current_ < 0) return Beside(1);
  const ChartSpot& here = spots_[static_cast<std::size_t>(current_)];
  const auto row = [](const ChartSpot& spot) { return spot.dot >= 0 ? 1000 : spot.set; };
  int wanted = -1, found = current_;
  for (std::size_t i = 0; i < spots_.size(); ++i) {
    const int distance = (row(spots_[i]) - row(here)) * step;
    if (distance <= 0 || (wanted >= 0 && distance > wanted)) continue;
    const bool nearer = distance == wanted &&
                        std::abs(spots_[i].point - here.point) >=
                            std::abs(spots_[static_cast<std::size_t>(found)].point - here.point);
    if (nearer) continue;
    wanted = distance;
    found = static_cast<int>(i);
  }
  return found;
}

void ChartWidget::keyPressEvent(QKeyEvent* event) {
  DrawIfChanged();
  const int last = static_cast<int>(spots_.size()) - 1;
  if (event->matches(QKeySequence::Copy)) return CopyPicture();
  switch (event->key()) {
    case Qt::Key_Left:
      return GoTo(Beside(-1), true);
    case Qt::Key_Right:
      return GoTo(Beside(1), true);
    case Qt::Key_Up:
      return GoTo(InOtherRow(1), true);
    case Qt::Key_Down:
      return GoTo(InOtherRow(-1), true);
    case Qt::Key_Home:
      return GoTo(std::min(0, last), true);
    case Qt::Key_End:
      return GoTo(last, true);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (CurrentSpot() && CurrentSpot()->dot >= 0) return Q_EMIT spotDoubleClicked();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

void ChartWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!chart_) return;
  QMenu menu(this);
  menu.addAction(tr("&Copy Picture"), this, &ChartWidget::CopyPicture);
  menu.addAction(tr("&Save Picture As..."), this, &ChartWidget::SavePicture);
  menu.exec(event->globalPos());
}

void ChartWidget::CopyPicture() {
  if (!chart_) return;
  const ChartFrame frame = FrameInTwips();
  const std::string png =
      PngPicture(frame.width, frame.height, kSavedDotsPerInch, DrawingOf(*chart_, frame));
  const std::string svg = SvgOf(*chart_, frame);
  auto* data = new QMimeData;  // the clipboard's
  data->setImageData(QImage::fromData(QByteArray::fromStdString(png), "PNG"));
  data->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(svg));
  QApplication::clipboard()->setMimeData(data);
}

void ChartWidget::SavePicture() {
  if (!chart_) return;
  FileDialogRequest request;
  request.save = true;
  request.title = "Save Picture";
  request.filename = "Graph.png";
  request.filter = "Pictures (*.png)|*.png|Vector Drawings (*.svg)|*.svg";
  request.default_extension = "png";
  request.overwrite_prompt = true;
  const std::optional<std::string> path = Platform().FileDialog(request);
  if (!path) return;
  const ChartFrame frame = FrameInTwips();
  const bool vectors = LowerCase(*path).ends_with(".svg");
  const std::string bytes =
      vectors ? SvgOf(*chart_, frame)
              : PngPicture(frame.width, frame.height, kSavedDotsPerInch, DrawingOf(*chart_, frame));
  if (const int error = ReplaceFile(*path, bytes, OldTail::kDrop))
    ShowMessage("File Error: " + PlainNumberText(error));
}

}  // namespace tallyroll
