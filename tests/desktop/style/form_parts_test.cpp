// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of forms that the system brings itself, as a form lays them out.
#include <QCheckBox>
#include <QLineEdit>
#include <QSettings>

#include "averages/portals/frmoptions.h"
#include "averages/portals/frmpercents.h"
#include "averages/portals/frmroundoff.h"
#include "desktop/portal/form_labels.h"
#include "desktop/portal/total_figure.h"
#include "roster/frmAdd.h"
#include "tests/desktop/class_dialogs.h"

namespace tallyroll {
namespace {

class FormParts : public ClassDialogs {
 protected:
  FormParts() {
    QSettings().clear();
    AddGrade("First", "T");
    AddGrade("Second", "Q");
  }
  ~FormParts() override {
    dialog.reset();
    QSettings().clear();
  }
};

TEST_F(FormParts, AWindowOpensAsLowAsItsFoldedExplanationLetsIt) {
  Current().Method = 0;
  const auto height = [] {
    frmroundoff portal;
    portal.Load();
    PortalDialog window(portal);
    const int opened = window.height();
    window.show();
    window.hide();
    return opened;
  };
  const int unfolded = height();
  EXPECT_LT(height(), unfolded);
}

TEST_F(FormParts, FieldsKeepTheirGapsInATallerWindow) {
  frmAdd portal;
  Open(portal);
  const auto step = [&] {
    return Find<QLineEdit>("firstname").y() - Find<QLineEdit>("lastname").y();
  };
  const int before = step();
  dialog->resize(dialog->width(), dialog->height() + 200);
  QCoreApplication::processEvents();
  EXPECT_EQ(step(), before);
}

TEST_F(FormParts, NothingMovesWhileATotalIsTyped) {
  TotalFigure total;
  total.setText(QStringLiteral("5"));
  const QSize before = total.sizeHint();
  total.setText(QStringLiteral("133.333"));
  EXPECT_EQ(total.sizeHint(), before);
}

TEST_F(FormParts, ASentenceToTickWrapsAndIsTickedOnEachOfItsLines) {
  frmpercents portal;
  Open(portal);
  dialog->resize(dialog->width(), 600);
  QCoreApplication::processEvents();
  auto& tick = Find<WrappingTick>("redist");
  const int line = tick.fontMetrics().height();
  EXPECT_GE(tick.height(), Find<QCheckBox>("dropyn").height() + line);
  EXPECT_EQ(tick.height(), tick.heightForWidth(tick.width()));
  QTest::mouseClick(&tick, Qt::LeftButton, {}, QPoint(60, tick.height() - line / 2));
  EXPECT_TRUE(portal.redist.Value);
  QTest::mouseClick(&tick, Qt::LeftButton, {}, QPoint(8, line / 2));
  EXPECT_FALSE(portal.redist.Value);
}

TEST_F(FormParts, ASentenceToTickThatFitsStandsOnOneLine) {
  WrappingTick tick;
  tick.setText(QStringLiteral("Drop Lowest by Type"));
  EXPECT_EQ(tick.heightForWidth(600), tick.QCheckBox::sizeHint().height());
  EXPECT_GT(tick.heightForWidth(90), tick.heightForWidth(600));
}

TEST_F(FormParts, AStateStandsOutWhereItIsOn) {
  Current().Method = 0;
  Current().AverageFlag2 = kTrue;
  frmoptions portal;
  Open(portal);
  EXPECT_TRUE(Find<StateWord>("dsl").IsOn());
  EXPECT_FALSE(Find<StateWord>("dlt").IsOn());
}

TEST_F(FormParts, ALineOfAClasssWordsTakesNoMoreThanItsWordsAndShrinks) {
  ElidedLabel line;
  line.setText(QStringLiteral("Al"));
  const int words = line.fontMetrics().horizontalAdvance(QStringLiteral("Al"));
  EXPECT_GT(line.sizeHint().width(), words);
  EXPECT_LE(line.sizeHint().width(), words + 2);
  EXPECT_LE(line.minimumSizeHint().width(), line.sizeHint().width());
  line.setText(QString(300, QLatin1Char('m')));
  EXPECT_LT(line.minimumSizeHint().width(), 200);
}

}  // namespace
}  // namespace tallyroll
