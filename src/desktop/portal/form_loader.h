// SPDX-License-Identifier: GPL-3.0-or-later
// Loads a form file into a dialog and forgives nothing.
#pragma once

#include <QDialog>
#include <QObjectList>
#include <QSet>
#include <QStringList>
#include <QUiLoader>

namespace tallyroll {

// What a form file made: its named objects in the file's order, and what is wrong with it.
struct LoadedForm {
  QObjectList objects;
  QStringList complaints;
};

// The loader underneath lets pass a name given twice, a property that does not exist and a class
// it does not know; each of these is a field that silently never works, so here each is refused.
class FormLoader : public QUiLoader {
  Q_OBJECT

 public:
  // `file` is a resource or a path. The dialog takes the form's name, title and children.
  LoadedForm Load(const QString& file, QDialog& dialog);

  QWidget* createWidget(const QString& class_name, QWidget* parent, const QString& name) override;
  QLayout* createLayout(const QString& class_name, QObject* parent, const QString& name) override;
  QAction* createAction(QObject* parent, const QString& name) override;
  QActionGroup* createActionGroup(QObject* parent, const QString& name) override;

 private:
  friend FormLoader& Forms();
  explicit FormLoader(QObject* parent);
  void Note(QObject* object, const QString& name);
  void ComplainOfDynamicProperties();

  QDialog* dialog_ = nullptr;
  QSet<QString> names_;
  LoadedForm form_;
};

// The one loader of the program: making it looks for plug-ins, so it is made once, without any.
FormLoader& Forms();

QString FormFile(std::string_view portal_name);

}  // namespace tallyroll
