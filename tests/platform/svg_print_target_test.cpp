// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/svg_print_target.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

constexpr const char* kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"72pt\" height=\"36pt\" "
    "viewBox=\"0 0 72 36\" font-family=\"Arial, Liberation Sans, Helvetica, sans-serif\" "
    "role=\"img\">\n";

TEST(SvgPrintTarget, WritesWhatIsDrawnInPoints) {
  SvgPrintTarget target(1440, 720);
  target.ForeColor = 0x0A0B0C;
  target.LineWidth = 20;
  target.Line(0, 10, 1440, -0.0);
  target.FillRectangle(20, 20, 40, 60, 0xFF8000);
  EXPECT_EQ(target.File("a < b & c"),
            std::string(kHead) +
                "<title>a &lt; b &amp; c</title>\n"
                "<line x1=\"0\" y1=\"0.5\" x2=\"72\" y2=\"0\" stroke=\"#0a0b0c\" "
                "stroke-width=\"1\"/>\n"
                "<polygon fill=\"#ff8000\" points=\"1,1 2,1 2,3 1,3\"/>\n"
                "</svg>\n");
}

// The text stands on its base line, 0.905 of ten points below its upper edge.
TEST(SvgPrintTarget, TextStandsOnItsBaseLine) {
  SvgPrintTarget target(1440, 720);
  target.FontBold = true;
  target.Print("Zo\xE9 <1>");
  target.FontBold = false;
  target.PrintUpwards("up", 100, 200);
  EXPECT_EQ(target.File(""),
            std::string(kHead) +
                "<title></title>\n"
                "<text x=\"0\" y=\"9.05\" font-size=\"10\" font-weight=\"bold\" fill=\"#000000\" "
                "xml:space=\"preserve\">Zo\xC3\xA9 &lt;1></text>\n"
                "<text transform=\"translate(14.05,10) rotate(-90)\" font-size=\"10\" "
                "fill=\"#000000\" xml:space=\"preserve\">up</text>\n"
                "</svg>\n");
}

TEST(SvgPrintTarget, MeasuresByTheWidthsOfTheFace) {
  SvgPrintTarget target(1440, 720);
  EXPECT_EQ(target.TextWidth("i1"), (222 + 556) * 10 * 20 / 1000.0);
  target.FontSize = 20;
  EXPECT_EQ(target.TextWidth("i1"), 2 * (222 + 556) * 10 * 20 / 1000.0);
  EXPECT_NEAR(target.TextHeight("x"), 459.6, 0.001);
  target.Print("x");
  target.Cls();
  EXPECT_EQ(target.CurrentY, 0);
  EXPECT_EQ(target.File("").find("<text"), std::string::npos);
}

}  // namespace
}  // namespace tallyroll
