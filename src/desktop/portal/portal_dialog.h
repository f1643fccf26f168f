// SPDX-License-Identifier: GPL-3.0-or-later
// PortalDialog: shows any Portal by the form of its name.
#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>
#include <vector>

#include "desktop/portal/control_binding.h"
#include "platform/portal.h"

namespace tallyroll {

struct LoadedForm;
class ScrollingBody;

// Each event copies what the user changed into the controls, calls the handler, and shows what the
// handler changed. While it shows and once the Portal is closed, nothing is passed on.
class PortalDialog : public QDialog, private BindingOwner {
  Q_OBJECT

 public:
  // The Portal is loaded. `form_file` is that of the Portal's name except in tests.
  PortalDialog(Portal& portal, const QString& form_file, QWidget* parent = nullptr);
  explicit PortalDialog(Portal& portal, QWidget* parent = nullptr);
  ~PortalDialog() override;

  // Why the form does not fit the Portal; a dialog with complaints must not be shown.
  const QStringList& Complaints() const { return complaints_; }

  // Shows what the Portal's controls hold now; called while a handler waits for something.
  void ShowControls();

  // Runs the Portal until it is unloaded.
  void RunModal();
  // Shows the Portal beside the one that keeps it, and goes on.
  void RestoreAndShow();
  void SaveAndHide();

  // The user's wish to leave, by Escape or the window's close box: the Portal decides.
  void reject() override;
  // A form cannot close a Portal by itself.
  void accept() override {}

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void UserDid(ControlBinding& binding, std::initializer_list<Event> events) override;
  void UserPressed(ControlBinding& binding, std::initializer_list<Event> events) override;
  void UserDropped(ControlBinding& binding, std::string_view source) override;

  void BindControls(const LoadedForm& form);
  void BindRow(ControlRow& row, const LoadedForm& form);
  void ComplainOfUndeclared(const LoadedForm& form);
  void LeaveEnterToTheDefault(const LoadedForm& form);

  // Calls one handler with everything around it; the answer is the handler's, false when silent.
  bool Raise(const std::function<bool()>& handler);
  void Raise(const std::function<void()>& handler);
  void ShowPortalsBeside();
  void ReadControls();
  void GiveFocusAsked();
  void FocusMoved(QWidget* now);
  // False when the handler wants the user to stay: it asked for the focus or put up a box.
  bool LeaveField();
  bool PressByShortcut(QObject& watched, QEvent& event);
  bool PassKey(ControlBinding& binding, const QKeyEvent& key);
  ControlBinding* BindingOf(const QWidget* widget) const;

  Portal& portal_;
  ControlTable table_;
  std::vector<std::unique_ptr<ControlBinding>> bindings_;
  QStringList complaints_;
  ScrollingBody* body_ = nullptr;  // null in a form without a foot
  QSize room_;                     // what it wanted at most until now
  ControlBinding* focused_ = nullptr;
  QWidget* swallow_press_of_ = nullptr;  // its press began with leaving a field that must be mended
  bool was_blocked_ = false;             // another window came up in front
  bool opening_ = true;                  // the first focus is given by opening, not by the user
  int silent_ = 1;                       // above 0 nothing is passed on; 0 once it shows
};

}  // namespace tallyroll
