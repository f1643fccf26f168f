// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/qt_surroundings.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QStandardPaths>

#include "desktop/basics/text_conversion.h"
#include "desktop/paper/pdf_target.h"
#include "desktop/platform/message_box.h"
#include "desktop/platform/open_save_dialog.h"
#include "desktop/platform/print_dialogs.h"
#include "desktop/platform/printer_target.h"
#include "desktop/portal/portal_dialog.h"
#include "platform/class_window.h"

namespace tallyroll {
namespace {

constexpr std::string_view kClipboardRefused =
    "The clipboard holds a character that cannot be stored in a class file.";
constexpr double kMillisecondsADay = 24.0 * 60 * 60 * 1000;

// Sections are compared without case; the settings of other windows lie beside those of the
// applications, never among them.
QString SettingKey(std::string_view application, std::string_view section, std::string_view key) {
  return QStringLiteral("%1/%2/%3")
      .arg(FromText(application), FromText(section).toLower(), FromText(key));
}

// The sample lies beside the program in the build tree, and in the shared folder once installed.
// The frame, which small windows beside a class stand before.
QWidget* MainWindow() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(window)) return window;
  return nullptr;
}

QStringList ProgramFolders() {
  const QString beside = QCoreApplication::applicationDirPath();
  return {beside, beside + QStringLiteral("/../share/tallyroll"),
          beside + QStringLiteral("/../../sample")};
}

// True: the form does not fit, and the Portal cannot be shown.
bool ReportComplaints(const PortalDialog& dialog, const Portal& portal) {
  for (const QString& complaint : dialog.Complaints())
    qCritical("%s: %s", portal.Name().c_str(), qUtf8Printable(complaint));
  if (!dialog.Complaints().isEmpty())
    ClassWindow().ShowStatus("This portal cannot be shown: its form does not fit.");
  return !dialog.Complaints().isEmpty();
}

}  // namespace

void ShowOpenPortals() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* portal = qobject_cast<PortalDialog*>(window);
    if (portal && portal->isVisible()) portal->ShowControls();
  }
}

BoxAnswer QtSurroundings::MessageBox(const MessageRequest& request) {
  ShowOpenPortals();
  return ShowMessageBox(request, QApplication::activeWindow());
}

std::optional<std::string> QtSurroundings::FileDialog(const FileDialogRequest& request) {
  ShowOpenPortals();
  return ShowFileDialog(request, QApplication::activeWindow());
}

void QtSurroundings::ShowModal(Portal& portal) {
  ShowOpenPortals();
  PortalDialog dialog(portal, QApplication::activeWindow());
  if (!ReportComplaints(dialog, portal)) dialog.RunModal();
}

void QtSurroundings::ShowBeside(Portal& portal) {
  HideBeside(portal);
  // A child of the modal dialog is the only other window that it leaves at work.
  QWidget* const modal = QApplication::activeModalWidget();
  auto dialog = std::make_unique<PortalDialog>(portal, modal ? modal : MainWindow());
  if (ReportComplaints(*dialog, portal)) return;
  dialog->RestoreAndShow();
  beside_[&portal] = dialog.release();
}

void QtSurroundings::HideBeside(Portal& portal) {
  const auto shown = beside_.find(&portal);
  if (shown == beside_.end()) return;
  if (shown->second) shown->second->SaveAndHide();
  delete shown->second.data();
  beside_.erase(shown);
}

void QtSurroundings::ShowHelp(int context) {
  if (help_hook) help_hook(context);
}

void QtSurroundings::Beep() {
  QApplication::beep();
}

std::string QtSurroundings::ClipboardText() {
  QString text = QApplication::clipboard()->text();
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  if (const std::optional<std::string> kept = ToTextLines(text)) return *kept;
  // Another program's text: it is refused whole and visibly, as a paste into a field is.
  ClassWindow().ShowStatus(kClipboardRefused);
  return {};
}

void QtSurroundings::SetClipboardText(std::string_view text) {
  QApplication::clipboard()->setText(LinesFromText(text));
}

std::string QtSurroundings::ReadSetting(std::string_view application, std::string_view section,
                                        std::string_view key, std::string_view default_value) {
  const QVariant value = settings_.value(SettingKey(application, section, key));
  if (!value.isValid()) return std::string(default_value);
  return ToText(value.toString()).value_or(std::string(default_value));
}

void QtSurroundings::WriteSetting(std::string_view application, std::string_view section,
                                  std::string_view key, std::string_view value) {
  settings_.setValue(SettingKey(application, section, key), FromText(value));
}

double QtSurroundings::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const auto days = static_cast<double>(QDate(1899, 12, 30).daysTo(now.date()));
  return days + now.time().msecsSinceStartOfDay() / kMillisecondsADay;
}

double QtSurroundings::Random() {
  return QRandomGenerator::global()->generateDouble();
}

DateOrder QtSurroundings::ShortDateOrder() {
  // A system without a country has no custom either; its pattern is no one's way to write a date.
  if (QLocale::system().language() == QLocale::C) return DateOrder::kMonthFirst;
  const QString pattern = QLocale::system().dateFormat(QLocale::ShortFormat);
  if (pattern.startsWith(QLatin1Char('d'), Qt::CaseInsensitive)) return DateOrder::kDayFirst;
  if (pattern.startsWith(QLatin1Char('y'), Qt::CaseInsensitive)) return DateOrder::kYearFirst;
  return DateOrder::kMonthFirst;
}

std::string QtSurroundings::ProfileFolder() {
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

std::string QtSurroundings::ProgramFolder() {
  for (const QString& folder : ProgramFolders()) {
    if (QFileInfo::exists(folder + QStringLiteral("/Sample8.TYR")))
      return ToPath(QDir(folder).canonicalPath());
  }
  return ToPath(QDir(ProgramFolders().front()).absolutePath());
}

QPrinter& QtSurroundings::Printer() {
  if (!printer_) printer_ = MakePrinter();
  return *printer_;
}

bool QtSurroundings::LiesAcross(bool landscape) {
  return landscape || Printer().pageLayout().orientation() == QPageLayout::Landscape;
}

std::unique_ptr<PrintTarget> QtSurroundings::MakePrintBox(bool landscape) {
  const Sheet sheet = SheetOf(Printer());
  return std::make_unique<QtPrintTarget>(LiesAcross(landscape) ? Turned(sheet) : sheet);
}

std::optional<PrintRange> QtSurroundings::PrintDialog(const PrintRange& offered) {
  ShowOpenPortals();
  return ShowPrintDialog(Printer(), offered, QApplication::activeWindow());
}

std::unique_ptr<PrintTarget> QtSurroundings::OpenPrinter(bool landscape, std::string_view title) {
  auto printer = PrinterTarget::Open(Printer(), LiesAcross(landscape), title);
  if (printer)
    printer->failed = [](int) {
      ShowMessage("The report could not be printed.", BoxIcon::kCritical);
    };
  return printer;
}

std::unique_ptr<PrintTarget> QtSurroundings::OpenPdf(const std::string& path, bool landscape,
                                                     std::string_view title) {
  int error = 0;
  auto pdf = PdfTarget::Open(path, SheetOf(Printer()), LiesAcross(landscape), title, error);
  if (pdf) pdf->failed = [](int) { ShowMessage("File Error"); };
  return pdf;
}

void QtSurroundings::PrinterSetUpDialog() {
  ShowOpenPortals();
  ShowPrinterSetUpDialog(Printer(), QApplication::activeWindow());
}

bool QtSurroundings::FontDialog(std::string& name, float& points) {
  ShowOpenPortals();
  return ShowFontDialog(name, points, QApplication::activeWindow());
}

// Keys and clicks come in the middle of a work only where a window beside offers to cancel it.
// Otherwise they wait for its end: what a Portal is shown meanwhile would lose them.
void QtSurroundings::PumpEvents() {
  ShowOpenPortals();
  QApplication::processEvents(beside_.empty() ? QEventLoop::ExcludeUserInputEvents
                                              : QEventLoop::AllEvents);
}

void QtSurroundings::SetWaitCursor(bool on) {
  if (on == waiting_) return;
  waiting_ = on;
  if (on)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

}  // namespace tallyroll
