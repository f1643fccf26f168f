// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame shows while no class is open: how to begin, and the recent files.
#include "desktop/window/start_page.h"

#include <QCommandLinkButton>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/basics/palette_icon.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {

namespace {

constexpr int kRecentFiles = 5;
constexpr int kRowSpacing = 8;

QLabel* Heading(const QString& text, double scale) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * scale);
  font.setBold(true);
  label->setFont(font);
  return label;
}

// Shows where the keyboard is and takes Enter, which a command link by itself does not.
class PageButton : public QCommandLinkButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QCommandLinkButton::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent* event) override {
    QCommandLinkButton::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  }
};

// A button's text shows "&" only when it is doubled.
QString Plain(QString text) {
  return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

// "&2. /home/ann/MATH.TYR" stands as the file's name above its folder.
void ShowRecent(QCommandLinkButton* button, const QString& caption) {
  if (button->property("caption") == caption) return;
  button->setProperty("caption", caption);
  const QString path = caption.mid(caption.indexOf(QStringLiteral(". ")) + 2)
                           .replace(QStringLiteral("&&"), QStringLiteral("&"));
  const auto slash = path.lastIndexOf(QLatin1Char('/'));
  button->setText(Plain(path.mid(slash + 1)));
  button->setDescription(path.left(slash + 1));
  button->setAccessibleName(path);
}

}  // namespace

StartPage::StartPage(const Menu& menu, QWidget* parent) : QWidget(parent), menu_(menu) {
  auto* begin = new QVBoxLayout;
  begin->setSpacing(kRowSpacing);
  begin->addWidget(Heading(tr("Begin"), 1.2));
  AddBeginning(QStringLiteral("mnuwizard"), QStringLiteral("New"), tr("New class with the &wizard"),
               tr("A few questions lead you to your first class."), begin);
  AddBeginning(QStringLiteral("mnuown"), QStringLiteral("Student"), tr("New class on &my own"),
               tr("Type in the students one after another."), begin);
  AddBeginning(QStringLiteral("mnuOpen"), QStringLiteral("Open"), tr("&Open a class..."),
               tr("Go on with a class that you saved before."), begin);
  begin->addStretch();

  auto* recent = new QVBoxLayout;
  recent->setSpacing(kRowSpacing);
  recent_heading_ = Heading(tr("Recent classes"), 1.2);
  recent->addWidget(recent_heading_);
  for (int i = 0; i < kRecentFiles; ++i) {
    recent_.push_back(AddButton(QStringLiteral("mnuFileList%1").arg(i), recent));
  }
  no_recent_ = new QLabel(tr("Classes that you open or save will be listed here."));
  no_recent_->setWordWrap(true);
  recent->addWidget(no_recent_);
  recent->addStretch();

  auto* columns = new QHBoxLayout;
  columns->setSpacing(48);  // between the columns; they would take it over for their rows
  columns->addLayout(begin, 1);
  columns->addLayout(recent, 1);

  auto* page = new QWidget;
  page->setMaximumWidth(920);
  auto* rows = new QVBoxLayout(page);
  rows->setSpacing(8);
  rows->addStretch(1);
  rows->addWidget(Heading(tr("Welcome to Tallyroll"), 2.2));
  rows->addWidget(new QLabel(tr("Your grade book: students, grades, attendance and averages.")));
  rows->addSpacing(24);
  rows->addLayout(columns);
  rows->addStretch(2);

  auto* centre = new QHBoxLayout(this);
  centre->setContentsMargins(32, 16, 32, 16);
  centre->addStretch(1);
  centre->addWidget(page, 12);
  centre->addStretch(1);
  DrawIcons();
  Sync();
}

QCommandLinkButton* StartPage::AddButton(const QString& entry, QVBoxLayout* column) {
  auto* button = new PageButton;
  button->setObjectName(entry);
  button->setIconSize(QSize(24, 24));
  connect(
      button, &QCommandLinkButton::clicked, this, [this, entry] { Q_EMIT Pressed(entry); },
      Qt::QueuedConnection);
  column->addWidget(button);
  return button;
}

void StartPage::AddBeginning(const QString& entry, const QString& icon, const QString& title,
                             const QString& description, QVBoxLayout* column) {
  QCommandLinkButton* button = AddButton(entry, column);
  button->setText(title);
  button->setDescription(description);
  button->setProperty("icon_name", icon);
  beginnings_.push_back(button);
}

void StartPage::Sync() {
  bool any = false;
  for (QCommandLinkButton* button : recent_) {
    const MenuEntry* entry = menu_.Find(button->objectName().toStdString());
    const bool shown = entry != nullptr && entry->visible && !entry->caption.empty();
    if (shown) ShowRecent(button, FromText(entry->caption));
    button->setVisible(shown);
    any = any || shown;
  }
  no_recent_->setVisible(!any);
}

void StartPage::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) DrawIcons();
  QWidget::changeEvent(event);
}

void StartPage::showEvent(QShowEvent* event) {
  beginnings_.front()->setFocus();
  QWidget::showEvent(event);
}

void StartPage::DrawIcons() {
  for (QCommandLinkButton* button : beginnings_) {
    button->setIcon(PaletteIcon(button->property("icon_name").toString(), palette()));
  }
  for (QCommandLinkButton* button : recent_) {
    button->setIcon(PaletteIcon(QStringLiteral("Grades"), palette()));
  }
}

}  // namespace tallyroll
