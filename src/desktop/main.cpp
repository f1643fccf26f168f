// SPDX-License-Identifier: GPL-3.0-or-later
// tallyroll: the grade book on the screen.
#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>
#include <string_view>

#include "desktop/basics/text_conversion.h"
#include "desktop/program.h"

namespace {

using namespace tallyroll;

void Describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(QStringLiteral("Tallyroll, a teacher's desktop grade book."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOption({QStringLiteral("dark"), QStringLiteral("Light text on a dark ground.")});
  parser.addPositionalArgument(QStringLiteral("class"),
                               QStringLiteral("A class file to open at once."),
                               QStringLiteral("[CLASS.TYR]"));
}

// These are answered without a screen, so that they work where there is none.
bool AsksForText(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
    return argument == "--help" || argument == "-h" || argument == "--help-all" ||
           argument == "--version" || argument == "-v";
  });
}

std::string CommandFileOf(const QCommandLineParser& parser) {
  const QStringList files = parser.positionalArguments();
  return files.isEmpty() ? std::string() : ToPath(files.front());
}

void NameApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("Tallyroll"));
  QCoreApplication::setOrganizationName(QStringLiteral("Tallyroll"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TALLYROLL_VERSION));
}

}  // namespace

int main(int argc, char** argv) {
  QCommandLineParser parser;
  Describe(parser);
  if (AsksForText(argc, argv)) {
    QCoreApplication application(argc, argv);
    NameApplication();
    parser.process(application);
    return 0;
  }
  QApplication application(argc, argv);
  NameApplication();
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tallyroll.Tallyroll"));
  parser.process(application);
  return RunProgram(application, parser.isSet(QStringLiteral("dark")), CommandFileOf(parser));
}
