// SPDX-License-Identifier: GPL-3.0-or-later
// How the Password Window looks in each of its modes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "shell/program.h"
#include "store/frmpassword.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// The mode, and how many times as large as usual the letters are.
using Look = std::tuple<int, double>;

class FrmPasswordLook : public testing::TestWithParam<Look> {
 protected:
  FrmPasswordLook() {
    ResetProgram();
    SetPlatform(&surroundings);
    QFont larger = usual;
    larger.setPointSizeF(usual.pointSizeF() * std::get<double>(GetParam()));
    QApplication::setFont(larger);
  }
  ~FrmPasswordLook() override {
    QApplication::setFont(usual);
    SetPlatform(nullptr);
    ResetProgram();
  }

  QFont usual = QApplication::font();
  HeadlessSurroundings surroundings;
};

TEST_P(FrmPasswordLook, LabelAndFieldLineUpAndNothingIsCut) {
  const int mode = std::get<int>(GetParam());
  OpenState = mode;
  frmpassword portal;
  portal.Load();
  PortalDialog dialog(portal);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const QString field_name = QStringLiteral("textcontrol%1").arg(mode - kNewPassword);
  const auto* field = dialog.findChild<QLineEdit*>(field_name);
  const auto* label = dialog.findChild<QLabel*>(field_name + QStringLiteral("_label"));
  ASSERT_TRUE(field && label);
  EXPECT_TRUE(field->isVisible());
  EXPECT_EQ(label->x(), field->x());
  EXPECT_LE(label->geometry().bottom(), field->y());
  EXPECT_GE(label->width(), label->sizeHint().width());
  EXPECT_GE(label->height(), label->sizeHint().height());
  EXPECT_GE(field->height(), field->sizeHint().height());
  EXPECT_TRUE(field->parentWidget()->rect().contains(field->geometry()));
  EXPECT_TRUE(field->parentWidget()->rect().contains(label->geometry()));
}

INSTANTIATE_TEST_SUITE_P(EveryMode, FrmPasswordLook,
                         testing::Combine(testing::Values(17, 18, 19, 20, 21),
                                          testing::Values(1.0, 2.0)));

}  // namespace
}  // namespace tallyroll
