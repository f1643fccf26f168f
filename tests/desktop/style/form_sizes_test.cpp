// SPDX-License-Identifier: GPL-3.0-or-later
// Windows and pictures are as large as what they show, at every density.
#include <QLabel>
#include <QScrollBar>
#include <QSettings>

#include "averages/portals/frminfo.h"
#include "averages/portals/frmscrnavg.h"
#include "desktop/style/program_style.h"
#include "shell/frmWizard.h"
#include "tests/desktop/class_dialogs.h"
#include "tests/desktop/style/looks.h"

namespace tallyroll {
namespace {

class FormSizes : public ClassDialogs {
 protected:
  FormSizes() { QSettings().clear(); }  // sizes that were kept
  static int Px(double length) {
    return qobject_cast<const ProgramStyle*>(QApplication::style())->measures().Px(length);
  }
  // In the height that its form gives it, however narrow the screen of the tests is.
  void ExpectNoGradeHidden(Portal& portal, const Look& look) {
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    dialog->show();
    dialog->resize(Px(960), dialog->height());
    QCoreApplication::processEvents();
    const QScrollBar* bar = Find<GridWidget>("grdgrade").verticalScrollBar();
    EXPECT_EQ(bar->maximum(), bar->minimum())
        << dialog->objectName().toStdString() << " " << look.name;
    dialog.reset();
  }
};

TEST_F(FormSizes, FourteenGradesOfAStudentAreSeenAtOnceAtEveryDensity) {
  for (int i = 1; i <= 14; ++i) AddGrade("Grade", "T");
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    frmscrnavg averages;
    ExpectNoGradeHidden(averages, look);
    frminfo information;
    ExpectNoGradeHidden(information, look);
  }
}

// In a picture of the screen's own dots, as large beside the words at every density.
TEST_F(FormSizes, ThePictureOfTheWizardGrowsWithTheFont) {
  for (const Look& look : kLooks) {
    const WornLook worn(look);
    frmWizard portal;
    Open(portal);
    const QPixmap picture = Find<QLabel>("Picture2").pixmap();
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(Px(128), Px(128))) << look.name;
    EXPECT_EQ(picture.devicePixelRatio(), qApp->devicePixelRatio()) << look.name;
    dialog.reset();
  }
}

}  // namespace
}  // namespace tallyroll
