// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/qt_surroundings.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "averages/portals/frmpoints.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/platform/open_save_dialog.h"
#include "desktop/portal/portal_dialog.h"
#include "shell/program.h"
#include "tests/desktop/next_window.h"

namespace tallyroll {
namespace {

class QtSurroundingsTest : public testing::Test {
 protected:
  BoxAnswer AnswerTo(BoxButtons buttons, bool second, int key) {
    MessageRequest request;
    request.text = "Really?";
    request.buttons = buttons;
    request.second_is_default = second;
    WithNextWindow<QMessageBox>([key](QMessageBox& box) {
      QTest::keyClick(&box, static_cast<Qt::Key>(key));
      if (box.isVisible()) box.button(QMessageBox::Yes)->click();
    });
    return surroundings.MessageBox(request);
  }

  QtSurroundings surroundings;
};

TEST_F(QtSurroundingsTest, ABoxShowsItsTextAsItStands) {
  MessageRequest request;
  request.text = "<b>Smith</b>\r\nsecond line";
  request.title = "Note";
  request.icon = BoxIcon::kExclamation;
  WithNextWindow<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("<b>Smith</b>\nsecond line"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Note"));
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    box.accept();
  });
  EXPECT_EQ(surroundings.MessageBox(request), BoxAnswer::kOk);
}

TEST_F(QtSurroundingsTest, EnterPressesTheDefaultOfABox) {
  EXPECT_EQ(AnswerTo(BoxButtons::kYesNo, false, Qt::Key_Return), BoxAnswer::kYes);
  EXPECT_EQ(AnswerTo(BoxButtons::kYesNo, true, Qt::Key_Return), BoxAnswer::kNo);
  EXPECT_EQ(AnswerTo(BoxButtons::kOkCancel, true, Qt::Key_Return), BoxAnswer::kCancel);
}

TEST_F(QtSurroundingsTest, EscapeIsCancelWhereThereIsOne) {
  EXPECT_EQ(AnswerTo(BoxButtons::kOkCancel, false, Qt::Key_Escape), BoxAnswer::kCancel);
  EXPECT_EQ(AnswerTo(BoxButtons::kYesNoCancel, false, Qt::Key_Escape), BoxAnswer::kCancel);
  EXPECT_EQ(AnswerTo(BoxButtons::kOk, false, Qt::Key_Escape), BoxAnswer::kOk);
}

TEST_F(QtSurroundingsTest, EscapeDoesNotAnswerYesOrNo) {
  // The box is still there after Escape, and Yes is pressed.
  EXPECT_EQ(AnswerTo(BoxButtons::kYesNo, true, Qt::Key_Escape), BoxAnswer::kYes);
}

TEST_F(QtSurroundingsTest, SettingsComeBackAndSectionsHaveNoCase) {
  EXPECT_EQ(surroundings.ReadSetting("TALLYRLG8", "startup", "FONT", "Times"), "Times");
  surroundings.WriteSetting("TALLYRLG8", "startup", "FONT", "Caf\xE9, \"x\"=;1");
  EXPECT_EQ(surroundings.ReadSetting("TALLYRLG8", "Startup", "FONT", ""), "Caf\xE9, \"x\"=;1");
  EXPECT_EQ(surroundings.ReadSetting("TALLYRLW6", "startup", "FONT", "none"), "none");
}

TEST_F(QtSurroundingsTest, AnEmptySettingIsNotAMissingOne) {
  surroundings.WriteSetting("TALLYRLG8", "FileUsed", "File0", "");
  EXPECT_EQ(surroundings.ReadSetting("TALLYRLG8", "FileUsed", "File0", "default"), "");
}

TEST_F(QtSurroundingsTest, ASettingThatLooksLikeAListComesBackWhole) {
  surroundings.WriteSetting("TALLYRLG8", "startup", "LetterString", "100'90, 80'");
  EXPECT_EQ(surroundings.ReadSetting("TALLYRLG8", "startup", "LetterString", ""), "100'90, 80'");
}

TEST_F(QtSurroundingsTest, TheClipboardEndsLinesWithTwoBytes) {
  surroundings.SetClipboardText("a\tb\r\nc");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a\tb\nc"));
  EXPECT_EQ(surroundings.ClipboardText(), "a\tb\r\nc");
}

TEST_F(QtSurroundingsTest, AClipboardThatCannotBeKeptIsRefusedWhole) {
  QApplication::clipboard()->setText(QStringLiteral(u"90\n\u4E2D"));
  EXPECT_EQ(surroundings.ClipboardText(), "");
}

TEST_F(QtSurroundingsTest, RandomLiesFromNoneUpToOne) {
  const double first = surroundings.Random(), second = surroundings.Random();
  EXPECT_GE(first, 0);
  EXPECT_LT(first, 1);
  EXPECT_NE(first, second);
}

TEST_F(QtSurroundingsTest, HelpGoesToTheFrame) {
  int shown = 0;
  surroundings.help_hook = [&shown](int context) { shown = context; };
  surroundings.ShowHelp(152);
  EXPECT_EQ(shown, 152);
}

TEST_F(QtSurroundingsTest, TheProfileFolderHasNoFinalSlash) {
  EXPECT_TRUE(surroundings.ProfileFolder().ends_with("/share"));
}

TEST(FileFilters, PatternsMatchBothCases) {
  EXPECT_EQ(FiltersOf(QStringLiteral("Data Files (*.tyr)|*.TYR")),
            QStringList(QStringLiteral("Data Files (*.tyr *.TYR)")));
  EXPECT_EQ(FiltersOf(QStringLiteral("Text (*.txt)|*.txt;*.csv|All Files|*.*")),
            QStringList({QStringLiteral("Text (*.txt *.TXT *.csv *.CSV)"),
                         QStringLiteral("All Files (*.*)")}));
  EXPECT_EQ(FiltersOf(QString()), QStringList());
}

TEST_F(QtSurroundingsTest, ANameWithoutAnExtensionGetsTheDefaultOne) {
  const QTemporaryDir folder;
  FileDialogRequest request;
  request.save = true;
  request.folder = ToPath(folder.path());
  request.filter = "Data Files (*.tyr)|*.TYR";
  request.default_extension = "TYR";
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    dialog.selectFile(QStringLiteral("class"));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(surroundings.FileDialog(request), ToPath(folder.path()) + "/class.TYR");
}

class NameOfOtherCase : public QtSurroundingsTest {
 protected:
  NameOfOtherCase() {
    QFile file(folder.filePath(QStringLiteral("b.tyr")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    request.folder = ToPath(folder.path());
    request.filter = "Data Files (*.tyr)|*.TYR";
    request.default_extension = "TYR";
  }
  // Types the name into the dialog and presses Enter there.
  static void Enter(QFileDialog& dialog, const QString& name) {
    auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    field->setFocus();
    field->setText(name);
    QTest::keyClick(field, Qt::Key_Return);
  }

  QTemporaryDir folder;
  FileDialogRequest request;
};

TEST_F(NameOfOtherCase, IsNotReplacedWithoutAQuestion) {
  request.save = request.overwrite_prompt = true;
  int questions = 0;
  WithNextWindow<QFileDialog>([&](QFileDialog& dialog) {
    const auto answer = [&](QMessageBox::StandardButton button) {
      WithNextWindow<QMessageBox>([&questions, button](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith(QStringLiteral("b.tyr already exists"))) << questions;
        ++questions;
        box.button(button)->click();
      });
    };
    answer(QMessageBox::No);
    Enter(dialog, QStringLiteral("b"));
    EXPECT_TRUE(dialog.isVisible());
    answer(QMessageBox::Yes);
    Enter(dialog, QStringLiteral("B"));
    if (dialog.isVisible()) dialog.reject();
  });
  EXPECT_EQ(surroundings.FileDialog(request), ToPath(folder.path()) + "/b.tyr");
  EXPECT_EQ(questions, 2);
}

TEST_F(QtSurroundingsTest, AFolderThatIsAwayGivesWayToTheWorkingDirectory) {
  const QTemporaryDir away;
  FileDialogRequest request;
  request.save = true;
  request.folder = ToPath(away.filePath(QStringLiteral("stick")));
  request.filename = request.folder + "/math.TYR";
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), QDir::currentPath());
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
              QStringLiteral("math.TYR"));
    dialog.reject();
  });
  EXPECT_EQ(surroundings.FileDialog(request), std::nullopt);
}

TEST_F(NameOfOtherCase, IsTheFileThatOpens) {
  request.file_must_exist = true;
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    Enter(dialog, QStringLiteral("B"));
    if (dialog.isVisible()) dialog.reject();
  });
  EXPECT_EQ(surroundings.FileDialog(request), ToPath(folder.path()) + "/b.tyr");
}

TEST_F(QtSurroundingsTest, ADialogThatSavesATextAsksForItsEncoding) {
  const QTemporaryDir folder;
  TextEncoding encoding = TextEncoding::kUtf8;
  FileDialogRequest request;
  request.save = true;
  request.folder = ToPath(folder.path());
  request.encoding = &encoding;
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    auto* encodings = dialog.findChild<QComboBox*>(QStringLiteral("encoding"));
    ASSERT_NE(encodings, nullptr);
    EXPECT_TRUE(encodings->isVisible());
    EXPECT_EQ(encodings->currentText(), QStringLiteral("UTF-8"));
    encodings->setCurrentText(QStringLiteral("Windows-1252"));
    dialog.reject();
  });
  EXPECT_EQ(surroundings.FileDialog(request), std::nullopt);
  EXPECT_EQ(encoding, TextEncoding::kUtf8);
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    auto* encodings = dialog.findChild<QComboBox*>(QStringLiteral("encoding"));
    encodings->setFocus();
    QTest::keyClick(encodings, Qt::Key_Down);
    dialog.selectFile(QStringLiteral("names.txt"));
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(surroundings.FileDialog(request), ToPath(folder.path()) + "/names.txt");
  EXPECT_EQ(encoding, TextEncoding::kWindows1252);
}

TEST_F(QtSurroundingsTest, ADialogWithoutATextAsksForNoEncoding) {
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QComboBox*>(QStringLiteral("encoding")), nullptr);
    dialog.reject();
  });
  surroundings.FileDialog({});
}

// What a column holds is read whole: which of two files is the newer one is told by their dates.
TEST_F(QtSurroundingsTest, TheColumnsOfAFileDialogAreAsWideAsWhatTheyHold) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("Algebra.TYR")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  FileDialogRequest request;
  request.folder = ToPath(folder.path());
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    // Files are read, and looked at for what they are, beside the dialog.
    const auto is_wide_enough = [files](int column) {
      const QModelIndex cell = files->model()->index(0, column, files->rootIndex());
      return cell.isValid() && files->columnWidth(column) >= files->sizeHintForIndex(cell).width();
    };
    for (int column = 0; column < files->model()->columnCount(); ++column)
      EXPECT_TRUE(QTest::qWaitFor([&] { return is_wide_enough(column); })) << column;
    EXPECT_EQ(files->header()->length(), files->viewport()->width());
    dialog.reject();
  });
  surroundings.FileDialog(request);
  // The toolkit keeps columns for every program of the user: theirs stay free to be pulled.
  const QFileDialog other;
  EXPECT_EQ(other.findChild<QTreeView*>(QStringLiteral("treeView"))->header()->sectionResizeMode(0),
            QHeaderView::Interactive);
}

TEST_F(QtSurroundingsTest, F1InAFileDialogShowsItsHelp) {
  int shown = 0;
  surroundings.help_hook = [&shown](int context) { shown = context; };
  SetPlatform(&surroundings);
  FileDialogRequest request;
  request.help_context = 110;
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) {
    for (QShortcut* shortcut : dialog.findChildren<QShortcut*>())
      if (shortcut->key() == QKeySequence(Qt::Key_F1)) Q_EMIT shortcut->activated();
    dialog.reject();
  });
  surroundings.FileDialog(request);
  SetPlatform(nullptr);
  EXPECT_EQ(shown, 110);
}

TEST_F(QtSurroundingsTest, CancellingTheDialogGivesNoPath) {
  WithNextWindow<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(surroundings.FileDialog({}), std::nullopt);
}

// The dialog of a small Portal beside the one in front.
PortalDialog* DialogBeside(const QString& title) {
  for (auto* dialog : QApplication::activeModalWidget()->findChildren<PortalDialog*>())
    if (dialog->windowTitle() == title && dialog->isVisible()) return dialog;
  return nullptr;
}

TEST_F(QtSurroundingsTest, APortalBesideIsAtWorkTogetherWithTheOneInFront) {
  ResetProgram();
  SetPlatform(&surroundings);
  frmpoints points;
  points.Load();
  WithNextWindow<PortalDialog>([](PortalDialog& front) {
    front.findChild<QPushButton*>(QStringLiteral("Sumanry"))->click();
    PortalDialog* totals = DialogBeside(QStringLiteral("Totals for Weights Entered"));
    ASSERT_NE(totals, nullptr);
    EXPECT_FALSE(totals->isModal());
    totals->findChild<QPushButton*>(QStringLiteral("exit"))->click();
    EXPECT_FALSE(totals->isVisible());
    front.findChild<QPushButton*>(QStringLiteral("Sumanry"))->click();
    EXPECT_NE(DialogBeside(QStringLiteral("Totals for Weights Entered")), nullptr);
    front.findChild<QPushButton*>(QStringLiteral("cancel"))->click();
  });
  surroundings.ShowModal(points);
  EXPECT_TRUE(points.Unloaded());
  ResetProgram();
  SetPlatform(nullptr);
}

}  // namespace
}  // namespace tallyroll
