// SPDX-License-Identifier: GPL-3.0-or-later
// The texts that teachers read on the forms of grades, letter for letter: odd spellings and double
// blanks are part of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <string>
#include <vector>

#include "desktop/portal/form_loader.h"

namespace tallyroll {
namespace {

struct FormTexts {
  const char* portal;
  const char* title;
  std::vector<std::string> texts;  // of labels, group boxes and buttons, in any order
};

const FormTexts kGradeForms[] = {
    {"frmMarks",
     "Enter  Grades  Portal",
     {"Title of  Grade",
      "Up to 3 Character Code",
      "Maximum Score for  Grade",
      "May be dropped when making up  Avg. (Y/N)",
      "Date",
      "Lowest Passing Score for Grade",
      "Type of Grade",
      "Special  Grade  Function Keys",
      " ABS [F6]",
      " NON [F7]",
      "CUT [F8]",
      "EXC [F9]",
      "Clip Board   (Title)",
      "Copy &To",
      "Paste &From",
      "Transfer &Grade from Clipboard",
      "Next Empty [F5]",
      "Paste Marks [Ctrl+V]",
      "Undo [Ctrl+Z]",
      "Redo [Ctrl+Shift+Z]",
      "Fi&ll",
      "&Another",
      "E&xit",
      "&Cancel",
      "Fill all EMPTY cells with",
      "Fill with ABS",
      "Fill with CUT",
      "Fill with NON",
      "Fill with EXC",
      "Fill with a Value",
      "&OK",
      "&Cancel"}},
    {"frmEmarks",
     "Edit Grades by Title Portal",
     {"Choose From List of Titles of Grades",
      "Choose a title",
      "Title of  Grade",
      "Up to 3 Character Code",
      "Maximum Score for  Grade",
      "May be dropped when making up  Avg. (Y/N)",
      "Date",
      "Lowest Passing Score for Grade",
      "Type of Grade",
      "Special  Grade  Function Keys",
      " ABS [F6]",
      " NON [F7]",
      "CUT [F8]",
      "EXC [F9]",
      "Next Empty [F5]",
      "Paste Marks [Ctrl+V]",
      "Undo [Ctrl+Z]",
      "Redo [Ctrl+Shift+Z]",
      "E&xit",
      "&Cancel"}},
    {"frmEMarksS",
     "Edit Grades by Student Name Portal",
     {"Choose From List of Student", "Names", "Special  Grade  Function Keys", " ABS [F6]",
      " NON [F7]", "CUT [F8]", "EXC [F9]", "Next Empty [F5]", "Paste Marks [Ctrl+V]",
      "Undo [Ctrl+Z]", "Redo [Ctrl+Shift+Z]", "E&xit", "&Cancel"}},
    {"frmdGrade",
     "Delete Grades Portal",
     {"Titles of Grades", "MOVE", "&Up", "Do&wn", "&Delete", "&Transfer Grade to Clipboard",
      "E&xit"}},
    {"frmcategories",
     "Modify Grade Type Categories Portal",
     {"Basic Categories - Fixed", "Modifable Categories", "Now", "New",
      "Description (max length 15 characters)", "1 or 2 Character Code", "&Defaults", "&Another",
      "E&xit", "&Cancel"}},
    {"frmletter",
     "Letter Values Portal",
     {"At this portal, you can set numeric values for the letter grades you enter as a mark (e.g., "
      "as a grade on a book report).",
      "&Use Modified Values For All New Classes", "Use &Default Values", "E&xit", "&Cancel"}},
    {"frmMgrade",
     "Missing Grades Portal",
     {"Students", "Missing grades", "Comments", "&Previous", "&Next", "E&xit"}},
};

// A label without a text is filled by its Portal.
std::vector<std::string> TextsOf(const LoadedForm& form) {
  std::vector<std::string> texts;
  for (const QObject* object : form.objects) {
    QString text;
    if (const auto* label = qobject_cast<const QLabel*>(object)) text = label->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(object)) text = box->title();
    if (const auto* button = qobject_cast<const QAbstractButton*>(object)) text = button->text();
    if (const auto* entry = qobject_cast<const QAction*>(object)) text = entry->text();
    if (!text.isEmpty()) texts.push_back(text.toStdString());
  }
  return texts;
}

TEST(GradeFormTexts, EveryFormReadsAsTeachersKnowIt) {
  for (const FormTexts& form : kGradeForms) {
    QDialog dialog;
    const LoadedForm loaded = Forms().Load(FormFile(form.portal), dialog);
    EXPECT_THAT(TextsOf(loaded), testing::UnorderedElementsAreArray(form.texts)) << form.portal;
    EXPECT_EQ(dialog.windowTitle().toStdString(), form.title) << form.portal;
  }
}

}  // namespace
}  // namespace tallyroll
