// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/portal_dialog.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcutEvent>
#include <QToolButton>
#include <utility>

#include "desktop/basics/key_mapping.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/basics/window_places.h"
#include "desktop/portal/exit_tips.h"
#include "desktop/portal/form_loader.h"
#include "desktop/portal/page_stack.h"
#include "desktop/portal/scrolling_body.h"
#include "desktop/portal/wheel_guard.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

// For as long as it lives, what happens to widgets is the program's doing.
class Silence {
 public:
  explicit Silence(int& count) : count_(count) { ++count_; }
  ~Silence() { --count_; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  int& count_;
};

// The size that was kept may be that of a lower page.
void TakePlace(QDialog& dialog, const QString& name, ScrollingBody* body, QSize& room) {
  RestorePlace(dialog, name);
  if (!dialog.findChild<PageStack*>()) return;
  room = QSize();
  TakeRoom(dialog, body, room);
}

QAbstractButton* PressedByEnter(QObject& watched) {
  if (auto* button = qobject_cast<QPushButton*>(&watched)) return button;
  return qobject_cast<QToolButton*>(&watched);
}

}  // namespace

PortalDialog::PortalDialog(Portal& portal, QWidget* parent)
    : PortalDialog(portal, FormFile(portal.Name()), parent) {}

PortalDialog::PortalDialog(Portal& portal, const QString& form_file, QWidget* parent)
    : QDialog(parent), portal_(portal) {
  WheelGuard::Install();
  const LoadedForm form = Forms().Load(form_file, *this);
  complaints_ = form.complaints;
  portal_.Declare(table_);
  BindControls(form);
  LeaveEnterToTheDefault(form);
  if (portal_.Caption.empty()) portal_.Caption = ToText(windowTitle()).value_or("");
  for (const auto& binding : bindings_) binding->TakeCaption();
  TellWhatExitDoes(*this, FromText(portal_.Name()));
  body_ = ScrollingBody::Of(*this);
  ShowControls();
  TakeRoom(*this, body_, room_);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { FocusMoved(now); });
}

// The widgets go after this object's own part has gone; nothing of theirs may come back to it.
PortalDialog::~PortalDialog() {
  qApp->disconnect(this);
}

void PortalDialog::BindControls(const LoadedForm& form) {
  for (const auto& row : table_.rows()) BindRow(*row, form);
  ComplainOfUndeclared(form);
}

void PortalDialog::BindRow(ControlRow& row, const LoadedForm& form) {
  const QString name = FromText(row.name);
  QObjectList named;
  for (QObject* object : form.objects)
    if (object->objectName() == name) named << object;
  if (named.size() != 1) {
    complaints_ << QStringLiteral("%1 is declared once and stands %2 times in the form")
                       .arg(name)
                       .arg(named.size());
    return;
  }
  auto binding = Bind(row, *named.front(), *this);
  if (!binding) {
    complaints_ << QStringLiteral("%1 cannot be shown by a %2")
                       .arg(name, QLatin1String(named.front()->metaObject()->className()));
    return;
  }
  if (binding->widget()) binding->widget()->installEventFilter(this);
  // The mouse presses what scrolls inside a list or a grid, not its frame.
  if (auto* area = qobject_cast<QAbstractScrollArea*>(binding->widget()))
    area->viewport()->installEventFilter(this);
  bindings_.push_back(std::move(binding));
}

void PortalDialog::ComplainOfUndeclared(const LoadedForm& form) {
  for (const QObject* object : form.objects) {
    if (!IsInput(*object)) continue;
    const std::optional<std::string> name = ToText(object->objectName());
    if (!name || !table_.Find(*name))
      complaints_
          << QStringLiteral("%1 stands in the form and is not declared").arg(object->objectName());
  }
}

// Enter presses the button with the focus, and from anywhere else only the one that the form calls
// the default. The toolkit would otherwise take the first button it finds.
void PortalDialog::LeaveEnterToTheDefault(const LoadedForm& form) {
  for (QObject* object : form.objects) {
    auto* button = qobject_cast<QPushButton*>(object);
    if (!button) continue;
    button->setAutoDefault(false);
    button->installEventFilter(this);
  }
}

void PortalDialog::ShowControls() {
  if (portal_.Unloaded()) return;
  const Silence silence(silent_);
  const QString title = FromText(portal_.Caption);
  if (windowTitle() != title) setWindowTitle(title);
  for (const auto& binding : bindings_) binding->Show();
}

void PortalDialog::ReadControls() {
  for (const auto& binding : bindings_) binding->Read();
}

void PortalDialog::Raise(const std::function<void()>& handler) {
  Raise(std::function<bool()>([&handler] {
    if (handler) handler();
    return true;
  }));
}

bool PortalDialog::Raise(const std::function<bool()>& handler) {
  if (silent_ > 0 || portal_.Unloaded()) return false;
  ReadControls();
  const bool answer = handler();
  ShowControls();
  ShowPortalsBeside();
  GiveFocusAsked();
  if (portal_.Unloaded() && isVisible()) {
    ++silent_;
    done(0);
  }
  return answer;
}

void PortalDialog::UserDid(ControlBinding& binding, std::initializer_list<Event> events) {
  for (const Event event : events) Raise(binding.row().*event);
}

void PortalDialog::UserPressed(ControlBinding& binding, std::initializer_list<Event> events) {
  if (silent_ > 0) return;
  if (focused_ != &binding && !LeaveField()) {
    ShowControls();
    return;
  }
  UserDid(binding, events);
  // A press may show what was hidden; typing never makes the window larger.
  if (isVisible()) TakeRoom(*this, body_, room_);
}

void PortalDialog::UserDropped(ControlBinding& binding, std::string_view source) {
  const auto& drop = binding.row().drag_drop;
  if (drop) Raise(std::function<void()>([&] { drop(source); }));
}

bool PortalDialog::LeaveField() {
  if (!focused_ || !focused_->row().lost_focus) return true;
  QWidget* before = focusWidget();
  was_blocked_ = false;
  Raise(focused_->row().lost_focus);
  return !portal_.Unloaded() && !was_blocked_ && focusWidget() == before;
}

void PortalDialog::GiveFocusAsked() {
  const Control* wanted = portal_.TakeFocusRequest();
  if (!wanted || portal_.Unloaded()) return;
  ControlRow* row = table_.Find(*wanted);
  for (const auto& binding : bindings_) {
    if (&binding->row() != row || !binding->widget()) continue;
    binding->widget()->setFocus(Qt::OtherFocusReason);
    binding->ShowSelection();
  }
}

ControlBinding* PortalDialog::BindingOf(const QWidget* widget) const {
  for (; widget && widget != this; widget = widget->parentWidget()) {
    for (const auto& binding : bindings_)
      if (binding->widget() == widget) return binding.get();
  }
  return nullptr;
}

// Popups, boxes and other windows take the focus only for a while; the field is not left.
void PortalDialog::FocusMoved(QWidget* now) {
  if (!now || now->window() != this) return;
  if (body_) body_->BringIntoSight(now);
  const bool opening = std::exchange(opening_, false);
  ControlBinding* binding = BindingOf(now);
  if (binding == focused_) return;
  ControlBinding* left = std::exchange(focused_, binding);
  if (silent_ > 0 || opening) return;
  was_blocked_ = false;
  // The button is up again when a box has been answered.
  const bool by_press = QApplication::mouseButtons() != Qt::NoButton;
  if (left) Raise(left->row().lost_focus);
  if (binding && focused_ == binding) Raise(binding->row().got_focus);
  const bool stopped = was_blocked_ || focused_ != binding;
  swallow_press_of_ = stopped && by_press ? now : nullptr;
}

bool PortalDialog::PassKey(ControlBinding& binding, const QKeyEvent& key) {
  const ControlRow& row = binding.row();
  if (const std::optional<Key> named = KeyOf(key); named && row.key_down) {
    if (Raise(std::function<bool()>([&] { return row.key_down(*named); }))) return true;
  }
  if (const std::optional<unsigned char> character = CharacterOf(key); character && row.key_press)
    return Raise(std::function<bool()>([&] { return row.key_press(*character); }));
  return false;
}

// A shortcut presses at once. The toolkit would show the button down for a moment first, and what a
// fast teacher types meanwhile would go astray.
bool PortalDialog::PressByShortcut(QObject& watched, QEvent& event) {
  auto* button = qobject_cast<QAbstractButton*>(&watched);
  if (!button || event.type() != QEvent::Shortcut) return false;
  if (static_cast<QShortcutEvent&>(event).isAmbiguous()) return false;
  button->click();
  return true;
}

bool PortalDialog::eventFilter(QObject* watched, QEvent* event) {
  if (PressByShortcut(*watched, *event)) return true;
  if (event->type() == QEvent::MouseButtonPress && swallow_press_of_ &&
      (watched == swallow_press_of_ || watched->parent() == swallow_press_of_)) {
    swallow_press_of_ = nullptr;
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  ControlBinding* binding = BindingOf(qobject_cast<QWidget*>(watched));
  if (binding && binding->widget() == watched && PassKey(*binding, key)) return true;
  auto* button = PressedByEnter(*watched);
  if (button && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
    button->click();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

bool PortalDialog::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) was_blocked_ = true;
  return QDialog::event(event);
}

void PortalDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1)
    Platform().ShowHelp(portal_.HelpContext);
  else
    QDialog::keyPressEvent(event);
}

void PortalDialog::reject() {
  Raise(std::function<void()>([this] { portal_.QueryUnload(); }));
}

void PortalDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Who comes by keys sees where the focus is from the first moment on.
  setAttribute(Qt::WA_KeyboardFocusChange);
  GiveFocusAsked();
  focused_ = BindingOf(focusWidget());
  if (body_) body_->BringIntoSight(focusWidget());
  silent_ = 0;
}

void PortalDialog::RunModal() {
  TakePlace(*this, FromText(portal_.Name()), body_, room_);
  exec();
  // A window manager may lose the focus when a box and the Portal below it go at the same moment.
  if (parentWidget()) parentWidget()->activateWindow();
  SavePlace(*this, FromText(portal_.Name()));
}

void PortalDialog::RestoreAndShow() {
  TakePlace(*this, FromText(portal_.Name()), body_, room_);
  show();
}

void PortalDialog::SaveAndHide() {
  SavePlace(*this, FromText(portal_.Name()));
  hide();
  if (parentWidget()) parentWidget()->activateWindow();
}

// What the handler wrote into the small Portals that stand beside this one, and into the one that
// this stands beside.
void PortalDialog::ShowPortalsBeside() {
  auto* keeper = qobject_cast<PortalDialog*>(parentWidget());
  if (keeper && keeper->isVisible()) keeper->ShowControls();
  for (auto* beside : findChildren<PortalDialog*>(Qt::FindDirectChildrenOnly))
    if (beside->isVisible()) beside->ShowControls();
}

}  // namespace tallyroll
