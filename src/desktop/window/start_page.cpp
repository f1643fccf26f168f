// SPDX-License-Identifier: GPL-3.0-or-later
// What the frame shows while no class is open: how to begin, and the recent files.
#include "desktop/window/start_page.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/basics/text_conversion.h"
#include "desktop/style/tokens.h"
#include "desktop/window/page_button.h"
#include "shell/data_folder.h"
#include "shell/recent_facts.h"
#include "store/safe_file.h"
#include "store/settings.h"

namespace tallyroll {

namespace {

constexpr int kRecentFiles = 5;
constexpr int kWidest = 880;
constexpr int kEmptyCardHeight = 212;
constexpr int kIconSide = 56;

// A text of the page in the size of its use, which follows the window's font.
class PageText : public QLabel {
 public:
  PageText(const QString& text, TextUse use) : QLabel(text), use_(use) {}
  QSize sizeHint() const override {
    const QFontMetrics metrics(FontFor(font(), use_));
    return metrics.size(Qt::TextSingleLine, text()) + QSize(2, 2);
  }
  QSize minimumSizeHint() const override { return {1, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Tokens t = TokensOf(palette());
    QPainter painter(this);
    painter.setFont(FontFor(font(), use_));
    painter.setPen(use_ == TextUse::kText ? t.muted : t.text);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());
  }

 private:
  TextUse use_;
};

// The program's own icon.
class PageIcon : public QWidget {
 public:
  PageIcon() { setFixedSize(kIconSide, kIconSide); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QApplication::windowIcon().paint(&painter, rect());
  }
};

// A button's text shows "&" only when it is doubled.
QString Plain(QString text) {
  return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

// "&2. /home/ann/MATH.TYR" stands as the file's name above its folder. True for another file.
bool ShowRecent(PageButton* button, const QString& caption) {
  if (button->property("caption") == caption) return false;
  button->setProperty("caption", caption);
  const QString path = caption.mid(caption.indexOf(QStringLiteral(". ")) + 2)
                           .replace(QStringLiteral("&&"), QStringLiteral("&"));
  const auto slash = path.lastIndexOf(QLatin1Char('/'));
  button->setText(Plain(path.mid(slash + 1)));
  button->setDescription(path.left(slash + 1));
  button->setAccessibleName(path);
  return true;
}

QVBoxLayout* Column(int spacing) {
  auto* column = new QVBoxLayout;
  column->setSpacing(spacing);
  return column;
}

}  // namespace

StartPage::StartPage(const Menu& menu, QWidget* parent) : QWidget(parent), menu_(menu) {
  auto* columns = new QHBoxLayout;
  columns->setSpacing(32);
  columns->addLayout(MakeBeginnings(), 1);
  columns->addLayout(MakeRecent(), 1);

  auto* words = Column(2);
  words->addWidget(new PageText(tr("Welcome to Tallyroll"), TextUse::kDisplay));
  words->addWidget(new PageText(tr("Your grade book: students, grades, attendance and averages."),
                                TextUse::kText));
  auto* title = new QHBoxLayout;
  title->setSpacing(16);
  title->addWidget(new PageIcon);
  title->addLayout(words, 1);

  auto* page = new QWidget;
  page->setMaximumWidth(kWidest);
  auto* rows = new QVBoxLayout(page);
  rows->setSpacing(8);
  rows->addStretch(1);
  rows->addLayout(title);
  rows->addSpacing(28);
  rows->addLayout(columns);
  rows->addStretch(2);

  auto* centre = new QHBoxLayout(this);
  centre->setContentsMargins(32, 16, 32, 16);
  centre->addStretch(1);
  centre->addWidget(page, 12);
  centre->addStretch(1);
  Sync();
}

QVBoxLayout* StartPage::MakeBeginnings() {
  auto* begin = Column(10);
  begin->addWidget(new PageText(tr("Begin"), TextUse::kHeading));
  AddBeginning(QStringLiteral("mnuwizard"), QStringLiteral("New"), tr("New class with the &wizard"),
               tr("A few questions lead you to your first class."), begin);
  AddBeginning(QStringLiteral("mnuown"), QStringLiteral("Student"), tr("New class on &my own"),
               tr("Type in the students one after another."), begin);
  AddBeginning(QStringLiteral("mnuOpen"), QStringLiteral("Open"), tr("&Open a class..."),
               tr("Go on with a class that you saved before."), begin);
  sample_ = AddBeginning(QString::fromLatin1(kSampleEntry), QStringLiteral("Grades"),
                         tr("Look at the &sample class"),
                         tr("A finished class to try everything with."), begin);
  begin->addStretch();
  return begin;
}

QVBoxLayout* StartPage::MakeRecent() {
  auto* recent = Column(10);
  recent->addWidget(new PageText(tr("Recent classes"), TextUse::kHeading));
  auto* card = new PageCard;
  auto* lines = new QVBoxLayout(card);
  lines->setContentsMargins(kPageCardMargin, kPageCardMargin, kPageCardMargin, kPageCardMargin - 1);
  lines->setSpacing(0);
  for (int i = 0; i < kRecentFiles; ++i) {
    auto* line = new PageButton(PageButton::Kind::kLine, QStringLiteral("Grades"));
    recent_.push_back(line);
    AddButton(line, QStringLiteral("mnuFileList%1").arg(i), lines);
  }
  no_recent_ = new QLabel(tr("Classes that you open or save will be listed here."));
  no_recent_->setWordWrap(true);
  no_recent_->setAlignment(Qt::AlignCenter);
  no_recent_->setForegroundRole(QPalette::PlaceholderText);
  no_recent_->setMinimumHeight(kEmptyCardHeight);
  lines->addWidget(no_recent_);
  recent->addWidget(card);
  recent->addStretch();
  return recent;
}

void StartPage::AddButton(PageButton* button, const QString& entry, QVBoxLayout* column) {
  button->setObjectName(entry);
  connect(
      button, &QCommandLinkButton::clicked, this, [this, entry] { Q_EMIT Pressed(entry); },
      Qt::QueuedConnection);
  column->addWidget(button);
}

PageButton* StartPage::AddBeginning(const QString& entry, const QString& icon, const QString& title,
                                    const QString& description, QVBoxLayout* column) {
  auto* button = new PageButton(PageButton::Kind::kCard, icon);
  AddButton(button, entry, column);
  button->setText(title);
  button->setDescription(description);
  if (beginnings_ == nullptr) beginnings_ = button;
  return button;
}

void StartPage::Sync() {
  bool any = false, others = false;
  for (PageButton* button : recent_) {
    const MenuEntry* entry = menu_.Find(button->objectName().toStdString());
    const bool shown = entry != nullptr && entry->visible && !entry->caption.empty();
    if (shown) others = ShowRecent(button, FromText(entry->caption)) || others;
    button->setVisible(shown);
    any = any || shown;
  }
  no_recent_->setVisible(!any);
  if (others && isVisible()) QTimer::singleShot(0, this, &StartPage::TellFacts);
}

// The files are asked once the page stands: a folder that is far away must not hold it up.
void StartPage::TellFacts() {
  for (int i = 0; i < kRecentFiles; ++i) {
    const std::string& path = RecentFiles[static_cast<std::size_t>(i)];
    if (!path.empty())
      recent_[static_cast<std::size_t>(i)]->SetFacts(FromText(TextOfFacts(FactsOfFile(path))));
  }
  sample_->setVisible(PathExists(SamplePath()));
}

void StartPage::showEvent(QShowEvent* event) {
  beginnings_->setFocus();
  QWidget::showEvent(event);
  QTimer::singleShot(0, this, &StartPage::TellFacts);
}

}  // namespace tallyroll
