// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/form_loader.h"

#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QFile>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "desktop/basics/names_of_parts.h"
#include "desktop/basics/palette_icon.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/cell_list.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/grid/seats_widget.h"
#include "desktop/letter/rich_text_edit.h"
#include "desktop/portal/chart_widget.h"
#include "desktop/portal/code_key.h"
#include "desktop/portal/code_page_text_edit.h"
#include "desktop/portal/date_field.h"
#include "desktop/portal/folding_text.h"
#include "desktop/portal/form_labels.h"
#include "desktop/portal/form_pictures.h"
#include "desktop/portal/page_stack.h"
#include "desktop/portal/scrolling_body.h"
#include "desktop/portal/telling_label.h"
#include "desktop/portal/total_figure.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

// The classes that the system brings itself; null for the toolkit's own.
QWidget* MakeOwnWidget(const QString& class_name, QWidget* parent) {
  if (class_name == QLatin1String("tallyroll::GridWidget") ||
      class_name == QLatin1String("GridWidget"))
    return new GridWidget(parent);
  if (class_name == QLatin1String("tallyroll::SeatsWidget")) return new SeatsWidget(parent);
  if (class_name == QLatin1String("tallyroll::TellingLabel")) return new TellingLabel(parent);
  if (class_name == QLatin1String("tallyroll::ChartWidget")) return new ChartWidget(parent);
  if (class_name == QLatin1String("tallyroll::RichTextEdit")) return new RichTextEdit(parent);
  if (class_name == QLatin1String("tallyroll::CellList")) return new CellList(parent);
  if (class_name == QLatin1String("QPlainTextEdit")) return new CodePageTextEdit(parent);
  if (class_name == QLatin1String("tallyroll::TotalFigure")) return new TotalFigure(parent);
  if (class_name == QLatin1String("tallyroll::FoldingText")) return new FoldingText(parent);
  if (class_name == QLatin1String("tallyroll::StateWord")) return new StateWord(parent);
  if (class_name == QLatin1String("tallyroll::WrappingTick")) return new WrappingTick(parent);
  if (class_name == QLatin1String("tallyroll::KeyChip")) return new KeyChip(parent);
  if (class_name == QLatin1String("tallyroll::CodeKey")) return new CodeKey(parent);
  if (class_name == QLatin1String("tallyroll::DateArrow")) return new DateArrow(parent);
  if (class_name == QLatin1String("tallyroll::ElidedLabel")) return new ElidedLabel(parent);
  if (class_name == QLatin1String("tallyroll::HelpText")) return new HelpText(parent);
  if (class_name == QLatin1String("tallyroll::ListCount")) return new ListCount(parent);
  if (class_name == QLatin1String("tallyroll::PageStack")) return new PageStack(parent);
  if (class_name == QLatin1String("tallyroll::MarginSheet")) return new MarginSheet(parent);
  if (class_name == QLatin1String("tallyroll::SideStrip")) return new SideStrip(parent);
  if (class_name == QLatin1String("tallyroll::SparePane")) return new SparePane(parent);
  if (class_name == QLatin1String("QDateEdit")) return new DateField(parent);
  return nullptr;
}

bool IsOfClass(const QObject& object, const QString& class_name) {
  // A line in a form is a frame without a class of its own.
  if (class_name == QLatin1String("Line")) return true;
  return class_name == QLatin1String(object.metaObject()->className());
}

// What stands between the rows of a grid; what a label's words are for, which the style draws them
// by, and whether it stands there without any; the word that a list shows as a chip, and the field
// from which it is walked; the picture of a label or a tool, the word below it, and which tool is
// the main one; the button that Enter presses while a page is shown; a sheet that waits for a
// pause.
bool IsOwnProperty(const QObject& object, const QByteArray& property) {
  return (property == "mainAction" && object.isWidgetType()) ||
         (property == "textUse" && qobject_cast<const QLabel*>(&object)) ||
         (property == "verticalSpacing" && qobject_cast<const QGridLayout*>(&object)) ||
         (property == "toldIn" && qobject_cast<const QAbstractItemView*>(&object)) ||
         (property == "chipWord" && qobject_cast<const QAbstractItemView*>(&object)) ||
         (property == "hideWhileEmpty" && qobject_cast<const QLabel*>(&object)) ||
         (property == "whenIdle" && qobject_cast<const QScrollArea*>(&object)) ||
         (property == "iconName" && qobject_cast<const QLabel*>(&object)) ||
         ((property == "iconName" || property == "shortWord" || property == "mainTool") &&
          qobject_cast<const QToolButton*>(&object));
}

// The lengths in a form are those beside the usual font; they grow and shrink with it.
void ScaleToFont(const QObjectList& objects, QDialog& dialog) {
  const auto scaled = [measures = ScreenMeasures()](int length) {
    return length == QWIDGETSIZE_MAX ? length : measures.Px(length);
  };
  for (QObject* object : objects) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || widget == &dialog) continue;
    const QSize least = widget->minimumSize(), most = widget->maximumSize();
    widget->setMinimumSize(scaled(least.width()), scaled(least.height()));
    widget->setMaximumSize(scaled(most.width()), scaled(most.height()));
  }
  dialog.resize(scaled(dialog.width()), scaled(dialog.height()));
}

// The toolkit sets a label a little below the upper edge of its field, however high fields are:
// each shall stand on the line of its field's words.
void AlignFormLabels(const QObjectList& objects) {
  const int higher_than_a_field = 2 * ScreenMeasures().Control();
  for (QObject* object : objects) {
    const auto* form = qobject_cast<const QFormLayout*>(object);
    for (int row = 0; form && row < form->rowCount(); ++row) {
      const QLayoutItem* label = form->itemAt(row, QFormLayout::LabelRole);
      const QLayoutItem* field = form->itemAt(row, QFormLayout::FieldRole);
      if (!label || !label->widget() || !field) continue;
      const int height = field->sizeHint().height();
      // A figure may be larger than a field; beside a box of many lines the label stays above.
      if (height < higher_than_a_field) label->widget()->setMinimumHeight(height);
    }
  }
}

QList<QWidget*> LabelsOf(const QWidget& page) {
  QList<QWidget*> labels;
  const auto* form = qobject_cast<const QFormLayout*>(page.layout());
  for (int row = 0; form && row < form->rowCount(); ++row)
    if (const QLayoutItem* label = form->itemAt(row, QFormLayout::LabelRole))
      if (label->widget()) labels << label->widget();
  return labels;
}

// Fields begin at one edge whichever page of the tabs is in front.
void AlignPages(const QObjectList& objects) {
  for (QObject* object : objects) {
    const auto* tabs = qobject_cast<const QTabWidget*>(object);
    QList<QWidget*> labels;
    for (int page = 0; tabs && page < tabs->count(); ++page)
      labels << LabelsOf(*tabs->widget(page));
    int widest = 0;
    for (const QWidget* label : labels)
      widest = std::max({widest, label->minimumWidth(), label->sizeHint().width()});
    for (QWidget* label : labels) label->setMinimumWidth(widest);
  }
}

// The toolkit's loader knows but one distance for the rows and the columns of a grid.
void SpaceRows(const QObjectList& objects) {
  for (QObject* object : objects) {
    auto* grid = qobject_cast<QGridLayout*>(object);
    const QVariant rows = grid ? grid->property("verticalSpacing") : QVariant();
    if (rows.isValid()) grid->setVerticalSpacing(rows.toInt());
  }
}

// As sharp as the screen is; the picture of a label grows with the font besides.
void DrawPictures(const QObjectList& objects) {
  constexpr double kPictureSide = 128;
  const auto* style = qobject_cast<const ProgramStyle*>(QApplication::style());
  const int side = style ? style->measures().Px(kPictureSide) : static_cast<int>(kPictureSide);
  for (QObject* object : objects) {
    const QIcon icon = ThemeIcon(object->property("iconName").toString());
    if (auto* tool = qobject_cast<QToolButton*>(object)) tool->setIcon(icon);
    auto* label = qobject_cast<QLabel*>(object);
    if (label && !icon.isNull()) label->setPixmap(icon.pixmap(side));
  }
}

void PrepareLabels(const QObjectList& objects) {
  for (QObject* object : objects) {
    auto* label = qobject_cast<QLabel*>(object);
    if (!label || !label->buddy()) continue;
    // Underlining a letter parts it from its neighbour: "Teacher" comes out wider than measured.
    label->setMinimumWidth(std::max(label->minimumWidth(), label->sizeHint().width() + 3));
  }
}

}  // namespace

FormLoader::FormLoader(QObject* parent) : QUiLoader(parent) {
  setTranslationEnabled(false);
  setLanguageChangeEnabled(false);
}

LoadedForm FormLoader::Load(const QString& file, QDialog& dialog) {
  form_ = {};
  names_.clear();
  dialog_ = &dialog;
  QFile device(file);
  if (!device.open(QIODevice::ReadOnly)) {
    form_.complaints << tr("%1 cannot be read").arg(file);
  } else if (!load(&device, nullptr)) {
    form_.complaints << tr("%1: %2").arg(file, errorString());
  }
  dialog_ = nullptr;
  // Its place in the form is one on the designer's desk: the dialog shall open over its window.
  dialog.setAttribute(Qt::WA_Moved, false);
  ScaleToFont(form_.objects, dialog);
  PrepareLabels(form_.objects);
  NameParts(form_.objects);
  AlignFormLabels(form_.objects);
  AlignPages(form_.objects);
  SpaceRows(form_.objects);
  DrawPictures(form_.objects);
  ComplainOfDynamicProperties();
  // A window takes no more room than what it will show.
  for (QObject* object : form_.objects)
    if (auto* text = qobject_cast<FoldingText*>(object)) text->FoldAsKept();
  return std::exchange(form_, {});
}

QWidget* FormLoader::createWidget(const QString& class_name, QWidget* parent, const QString& name) {
  QWidget* widget = nullptr;
  if (!parent && dialog_) {
    widget = std::exchange(dialog_, nullptr);
    widget->setObjectName(name);
    if (class_name != QLatin1String("QDialog"))
      form_.complaints << tr("%1 is a %2, not a QDialog").arg(name, class_name);
  } else if (QWidget* own = MakeOwnWidget(class_name, parent)) {
    widget = own;
    widget->setObjectName(name);
  } else {
    widget = QUiLoader::createWidget(class_name, parent, name);
    if (!widget || !IsOfClass(*widget, class_name))
      form_.complaints << tr("%1: the class %2 is unknown").arg(name, class_name);
  }
  Note(widget, name);
  return widget;
}

QLayout* FormLoader::createLayout(const QString& class_name, QObject* parent, const QString& name) {
  QLayout* layout = QUiLoader::createLayout(class_name, parent, name);
  Note(layout, name);
  return layout;
}

QAction* FormLoader::createAction(QObject* parent, const QString& name) {
  QAction* action = QUiLoader::createAction(parent, name);
  Note(action, name);
  return action;
}

QActionGroup* FormLoader::createActionGroup(QObject* parent, const QString& name) {
  QActionGroup* group = QUiLoader::createActionGroup(parent, name);
  Note(group, name);
  return group;
}

void FormLoader::Note(QObject* object, const QString& name) {
  if (!object) return;
  form_.objects << object;
  if (name.isEmpty()) return;
  if (names_.contains(name)) form_.complaints << tr("the name %1 is given twice").arg(name);
  names_.insert(name);
}

void FormLoader::ComplainOfDynamicProperties() {
  for (const QObject* object : std::as_const(form_.objects)) {
    for (const QByteArray& property : object->dynamicPropertyNames()) {
      // The toolkit's own notes; it notes a layout's margins besides setting them.
      if (property.startsWith("_q_")) continue;
      if (IsOwnProperty(*object, property)) continue;
      if (qobject_cast<const QLayout*>(object) && property.endsWith("Margin")) continue;
      form_.complaints
          << tr("%1 has no property %2").arg(object->objectName(), QString::fromUtf8(property));
    }
  }
}

FormLoader& Forms() {
  if (auto* loader = qApp->findChild<FormLoader*>()) return *loader;
  const QStringList paths = QCoreApplication::libraryPaths();
  QCoreApplication::setLibraryPaths({});
  auto* loader = new FormLoader(qApp);
  QCoreApplication::setLibraryPaths(paths);
  return *loader;
}

QString FormFile(std::string_view portal_name) {
  return QStringLiteral(":/forms/%1.ui").arg(FromText(portal_name));
}

}  // namespace tallyroll
