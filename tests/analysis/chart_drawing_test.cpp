// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/chart_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include "analysis/chart_axis.h"
#include "platform/fixed_print_target.h"

namespace tallyroll {
namespace {

const ChartFrame kFrame{1000, 2000, 8000, 5000};

struct Box {
  double left, top, right, bottom;
};

Box BoxOf(const PrintedText& text) {
  const double length = static_cast<double>(text.text.size()) * text.size * 10;
  const double height = text.size * 24;
  if (text.upwards) return {text.x, text.y - length, text.x + height, text.y};
  return {text.x, text.y, text.x + length, text.y + height};
}

Box BoxOf(const std::vector<PrintPoint>& corners) {
  Box box{1e9, 1e9, -1e9, -1e9};
  for (const PrintPoint& corner : corners) {
    box = {std::min(box.left, corner.x), std::min(box.top, corner.y), std::max(box.right, corner.x),
           std::max(box.bottom, corner.y)};
  }
  return box;
}

bool Meet(const Box& a, const Box& b) {
  constexpr double kHair = 0.001;
  return a.left < b.right - kHair && b.left < a.right - kHair && a.top < b.bottom - kHair &&
         b.top < a.bottom - kHair;
}

void ExpectInside(const Box& box, const ChartFrame& frame, const std::string& what) {
  constexpr double kHair = 0.001;
  EXPECT_GE(box.left, frame.left - kHair) << what;
  EXPECT_GE(box.top, frame.top - kHair) << what;
  EXPECT_LE(box.right, frame.left + frame.width + kHair) << what;
  EXPECT_LE(box.bottom, frame.top + frame.height + kHair) << what;
}

struct Drawn {
  PrintedPage page;
  std::vector<ChartSpot> spots;
};

Drawn Draw(const Chart& chart, const ChartFrame& frame = kFrame) {
  FixedPrintTarget target;
  Drawn drawn;
  drawn.spots = DrawChart(chart, target, frame, kLightChart);
  drawn.page = target.job->pages.back();
  return drawn;
}

// What holds of every chart: all within the frame, no text over another.
void ExpectInOrder(const Drawn& drawn, const ChartFrame& frame = kFrame) {
  for (const PrintedShape& shape : drawn.page.shapes)
    ExpectInside(BoxOf(shape.corners), frame, "shape");
  for (const PrintedLine& line : drawn.page.lines)
    ExpectInside({std::min(line.x1, line.x2), std::min(line.y1, line.y2),
                  std::max(line.x1, line.x2), std::max(line.y1, line.y2)},
                 frame, "line");
  const std::vector<PrintedText>& texts = drawn.page.texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ExpectInside(BoxOf(texts[i]), frame, texts[i].text);
    for (std::size_t k = i + 1; k < texts.size(); ++k)
      EXPECT_FALSE(Meet(BoxOf(texts[i]), BoxOf(texts[k])))
          << texts[i].text << " over " << texts[k].text;
  }
}

Chart ChartOf(const std::vector<double>& values, ChartKind kind = ChartKind::kBar) {
  Chart chart;
  chart.kind = kind;
  chart.title = "QUIZ 1";
  chart.sets[0].values = values;
  for (std::size_t i = 0; i < values.size(); ++i)
    chart.labels.push_back("Q" + std::to_string(i + 1));
  return chart;
}

std::vector<Box> BarsOf(const Drawn& drawn, PrintColor color) {
  std::vector<Box> bars;
  for (const PrintedShape& shape : drawn.page.shapes)
    if (shape.color == color) bars.push_back(BoxOf(shape.corners));
  return bars;
}

bool HasText(const Drawn& drawn, const std::string& text) {
  return std::any_of(drawn.page.texts.begin(), drawn.page.texts.end(),
                     [&](const PrintedText& each) { return each.text == text; });
}

TEST(ChartAxis, GoesFromZeroInRoundSteps) {
  const std::pair<double, double> steps[] = {{1, 1},   {5, 1},    {6, 2},    {12, 5},    {23, 5},
                                             {26, 10}, {100, 20}, {125, 50}, {1000, 200}};
  for (const auto& [highest, step] : steps) {
    const ChartAxis axis = AxisFor(0, highest, 5);
    EXPECT_EQ(axis.step, step) << highest;
    EXPECT_EQ(axis.bottom, 0);
    EXPECT_GE(axis.top, highest);
    EXPECT_LE(axis.top / axis.step, 5);
  }
}

TEST(ChartAxis, ReachesBelowZeroOnlyWhereAValueDoes) {
  const ChartAxis axis = AxisFor(-7, 95, 5);
  EXPECT_EQ(axis.bottom, -50);
  EXPECT_EQ(axis.top, 100);
  EXPECT_EQ(AxisFor(10, 20, 5).bottom, 0);
  EXPECT_EQ(AxisFor(-20, -10, 4).top, 0);
}

TEST(ChartAxis, OfNothingIsFromZeroToOne) {
  EXPECT_EQ(AxisFor(0, 0, 5).top, 1);
  EXPECT_EQ(AxisFor(-10, 10, 0).step, 20);  // one step is wanted, the two ends take one each
}

TEST(ChartDrawing, BarsAreAsHighAsTheirValues) {
  const Drawn drawn = Draw(ChartOf({2, 4, 0, 8}));
  const std::vector<Box> bars = BarsOf(drawn, kLightChart.sets[0]);
  ASSERT_EQ(bars.size(), 3u);  // a 0 has none
  const auto height = [](const Box& box) { return box.bottom - box.top; };
  EXPECT_NEAR(height(bars[1]), 2 * height(bars[0]), 0.01);
  EXPECT_NEAR(height(bars[2]), 4 * height(bars[0]), 0.01);
  EXPECT_EQ(bars[0].bottom, bars[2].bottom);
  ExpectInOrder(drawn);
  for (const char* text : {"QUIZ 1", "Q1", "Q4", "2", "4", "0", "8"})
    EXPECT_TRUE(HasText(drawn, text)) << text;
}

TEST(ChartDrawing, ANegativeValueHangsBelowZero) {
  const Drawn drawn = Draw(ChartOf({10, -5}));
  const std::vector<Box> bars = BarsOf(drawn, kLightChart.sets[0]);
  ASSERT_EQ(bars.size(), 2u);
  EXPECT_NEAR(bars[0].bottom, bars[1].top, 0.01);
  EXPECT_NEAR(bars[0].bottom - bars[0].top, 2 * (bars[1].bottom - bars[1].top), 0.01);
  ExpectInOrder(drawn);
}

TEST(ChartDrawing, ThirtyGradesAreReadable) {
  std::vector<double> values;
  for (int i = 0; i < 30; ++i) values.push_back(40 + i * 2);
  for (const ChartKind kind : {ChartKind::kBar, ChartKind::kLine}) {
    Chart chart = ChartOf(values, kind);
    const Drawn drawn = Draw(chart);
    ExpectInOrder(drawn);
    for (const std::string& label : chart.labels) EXPECT_TRUE(HasText(drawn, label)) << label;
    EXPECT_EQ(drawn.spots.size(), 30u);
  }
}

TEST(ChartDrawing, LabelsThatAreLeftOutAreTold) {
  std::vector<double> values;
  for (int i = 0; i < 300; ++i) values.push_back(i % 101);
  const Drawn drawn = Draw(ChartOf(values));
  ExpectInOrder(drawn);
  EXPECT_EQ(BarsOf(drawn, kLightChart.sets[0]).size(), 297u);  // three are 0
  const auto labels = std::count_if(drawn.page.texts.begin(), drawn.page.texts.end(),
                                    [](const PrintedText& text) { return text.upwards; });
  const auto note =
      std::find_if(drawn.page.texts.begin(), drawn.page.texts.end(),
                   [](const PrintedText& text) { return text.text.ends_with(" labels is shown"); });
  ASSERT_NE(note, drawn.page.texts.end());
  const int every = std::stoi(note->text.substr(5));
  EXPECT_EQ(labels, (300 + every - 1) / every);
  EXPECT_GT(every, 1);
}

TEST(ChartDrawing, FewLabelsAreNeitherTurnedNorLeftOut) {
  const Drawn drawn = Draw(ChartOf(std::vector<double>(9, 3)));
  for (const PrintedText& text : drawn.page.texts) {
    EXPECT_FALSE(text.upwards) << text.text;
    EXPECT_EQ(text.text.find("shown"), std::string::npos);
  }
}

TEST(ChartDrawing, ALongTitleIsCut) {
  Chart chart = ChartOf({1});
  chart.title = std::string(500, 'W');
  const Drawn drawn = Draw(chart);
  ExpectInOrder(drawn);
  EXPECT_TRUE(drawn.page.texts[0].text.ends_with("\x85"));
}

TEST(ChartDrawing, SlicesAddUpToTheCircle) {
  Chart chart = ChartOf({1, 0, 2, 5}, ChartKind::kPie);
  chart.labels.clear();
  chart.legend = {"low", "none", "some", "many"};
  chart.exploded.assign(4, true);
  const Drawn drawn = Draw(chart);
  ExpectInOrder(drawn);
  double area = 0, smallest = 1e12;
  double radius = 0;
  int slices = 0;
  for (std::size_t k = 0; k < drawn.spots.size(); ++k) {
    const std::vector<PrintPoint>& corners = drawn.spots[k].outline;
    double twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const PrintPoint& a = corners[i];
      const PrintPoint& b = corners[(i + 1) % corners.size()];
      twice += a.x * b.y - b.x * a.y;
    }
    area += std::abs(twice) / 2;
    smallest = std::min(smallest, std::abs(twice) / 2);
    radius = std::hypot(corners[1].x - corners[0].x, corners[1].y - corners[0].y);
    ++slices;
  }
  EXPECT_EQ(slices, 3);  // a 0 has no slice
  EXPECT_NEAR(area / (M_PI * radius * radius), 1, 0.001);
  EXPECT_NEAR(smallest / area, 1.0 / 8, 0.001);
  for (const std::string& text : chart.legend) EXPECT_TRUE(HasText(drawn, text)) << text;
  EXPECT_EQ(drawn.spots[1].point, 2);
}

TEST(ChartDrawing, APieOfNothingKeepsItsLegend) {
  Chart chart = ChartOf({0, 0}, ChartKind::kPie);
  chart.legend = {"a", "b"};
  const Drawn drawn = Draw(chart);
  EXPECT_TRUE(HasText(drawn, "a"));
  EXPECT_TRUE(drawn.spots.empty());
  ExpectInOrder(drawn);
}

TEST(ChartDrawing, OneSliceIsTheWholeCircle) {
  Chart chart = ChartOf({0, 7}, ChartKind::kPie);
  chart.exploded.assign(2, true);
  chart.legend = {"a", "b"};
  const Drawn drawn = Draw(chart);
  ExpectInOrder(drawn);
  EXPECT_EQ(drawn.spots.size(), 1u);
}

TEST(ChartDrawing, SetsStandSideBySideUnderTheirNames) {
  Chart chart = ChartOf({1, 2, 3});
  chart.sets[0].name = "ONE.TYR";
  chart.sets.push_back({"TWO.TYR", {3, 2, 1}, {}});
  for (const ChartKind kind : {ChartKind::kBar, ChartKind::kLine}) {
    chart.kind = kind;
    const Drawn drawn = Draw(chart);
    ExpectInOrder(drawn);
    EXPECT_TRUE(HasText(drawn, "ONE.TYR"));
    EXPECT_TRUE(HasText(drawn, "TWO.TYR"));
    EXPECT_EQ(BarsOf(drawn, kLightChart.sets[0]).size(), 4u);  // and a field of the legend
    EXPECT_EQ(BarsOf(drawn, kLightChart.sets[1]).size(), 4u);
  }
}

TEST(ChartDrawing, TheThinLineHasGaps) {
  Chart chart = ChartOf({1, 2, 3, 4});
  const Drawn without = Draw(chart);
  chart.thin_line = {1, 2, std::numeric_limits<double>::quiet_NaN(), 3};
  chart.thin_name = "Average of the class";
  const Drawn drawn = Draw(chart);
  ExpectInOrder(drawn);
  const auto thin =
      std::count_if(drawn.page.lines.begin(), drawn.page.lines.end(),
                    [](const PrintedLine& line) { return line.color == kLightChart.thin; });
  EXPECT_EQ(thin, 3 + 1 + 1);  // three points, the one line between two, the legend's
  EXPECT_TRUE(HasText(drawn, "Average of the class"));
}

TEST(ChartDrawing, AThousandDotsStayInTheirStripAndCanBeTold) {
  Chart chart = ChartOf(std::vector<double>(9, 100));
  for (int i = 0; i < 1000; ++i)
    chart.dots.push_back({i % 9, (i % 10) / 10.0, "student " + std::to_string(i)});
  const Drawn drawn = Draw(chart);
  ExpectInOrder(drawn);
  EXPECT_EQ(drawn.spots.size(), 9u + 1000u);
  EXPECT_EQ(TellSpot(chart, drawn.spots.back()), "student 999");
  const Box highest_bar = BarsOf(drawn, kLightChart.sets[0])[0];
  for (const Box& dot : BarsOf(drawn, kLightChart.thin)) EXPECT_LE(dot.bottom, highest_bar.top);
}

TEST(ChartDrawing, ASpotTellsWhatThePortalSaysOrItsValue) {
  Chart chart = ChartOf({4, 5});
  chart.sets[0].tells = {"four students", ""};
  EXPECT_EQ(TellSpot(chart, {{}, 0, 0, -1}), "four students");
  EXPECT_EQ(TellSpot(chart, {{}, 0, 1, -1}), "Q2: 5");
  chart.sets[0].name = "ONE.TYR";
  EXPECT_EQ(TellSpot(chart, {{}, 0, 1, -1}), "ONE.TYR, Q2: 5");
}

// However small the frame: nothing beside it, no text over another, and the points are there.
TEST(ChartDrawing, AnyFrameTakesAnyChart) {
  for (const double width : {1.0, 60.0, 300.0, 700.0, 1500.0, 6000.0, 20000.0}) {
    for (const double height : {1.0, 60.0, 300.0, 700.0, 1500.0, 6000.0}) {
      const ChartFrame frame{500, 900, width, height};
      for (const ChartKind kind : {ChartKind::kBar, ChartKind::kLine, ChartKind::kPie}) {
        for (const std::size_t points : {0U, 1U, 9U, 300U}) {
          SCOPED_TRACE(testing::Message() << width << " x " << height << ", " << points
                                          << " points, kind " << static_cast<int>(kind));
          Chart chart = ChartOf(std::vector<double>(points, 7), kind);
          chart.legend = chart.labels;
          const Drawn drawn = Draw(chart, frame);
          ExpectInOrder(drawn, frame);
          EXPECT_GT(drawn.page.shapes.size(), points == 0 ? 0u : 1u);
          for (const ChartSpot& spot : drawn.spots)
            ExpectInside(BoxOf(spot.outline), frame, "spot");
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

TEST(ChartDrawing, AnyFrameTakesAllThatAChartCanHold) {
  for (const double width : {60.0, 300.0, 900.0, 2500.0}) {
    for (const double height : {60.0, 300.0, 900.0, 2500.0}) {
      const ChartFrame frame{500, 900, width, height};
      for (const ChartKind kind : {ChartKind::kBar, ChartKind::kLine}) {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        Chart chart = ChartOf({12, -30, 0, 99, 327, 5}, kind);
        for (int set = 1; set < 5; ++set)
          chart.sets.push_back({"A CLASS OF NO SHORT NAME", {1, 2, 3, -4, 5, 6}, {}});
        chart.sets[0].name = "ONE.TYR";
        chart.thin_line = {1, 50, -30, 4, 5, 327};
        chart.thin_name = "Average of the class";
        for (int i = 0; i < 60; ++i) chart.dots.push_back({i % 6, i / 60.0, "dot"});
        ExpectInOrder(Draw(chart, frame), frame);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

// At 300 by 300 pixels a chart of nine ranges still says what it is about.
TEST(ChartDrawing, ASmallFrameKeepsTitleAndAxis) {
  const Drawn drawn = Draw(ChartOf(std::vector<double>(9, 3)), {0, 0, 4500, 4500});
  EXPECT_TRUE(HasText(drawn, "QUIZ 1"));
  EXPECT_TRUE(HasText(drawn, "0"));
  EXPECT_TRUE(HasText(drawn, "Q9"));
}

TEST(ChartDrawing, TheThinLineTellsItsPoints) {
  Chart chart = ChartOf({80, 90, 70});
  chart.sets[0].tells = {"a", "b", "c"};
  chart.thin_line = {85, std::numeric_limits<double>::quiet_NaN(), 200.0 / 3};
  chart.thin_name = "Average of the class";
  const Drawn drawn = Draw(chart);
  ASSERT_EQ(drawn.spots.size(), 3u + 2u);  // a gap has nothing to tell
  EXPECT_EQ(TellSpot(chart, drawn.spots[3]), "Average of the class, Q1: 85");
  EXPECT_EQ(TellSpot(chart, drawn.spots[4]), "Average of the class, Q3: 66.67");
  // It lies where the line does, the bar of 80 reaching not so high.
  const Box thin = BoxOf(drawn.spots[3].outline);
  const Box bar = BarsOf(drawn, kLightChart.sets[0])[0];
  EXPECT_LT((thin.top + thin.bottom) / 2, bar.top);
  EXPECT_EQ(TellSpot(chart, drawn.spots[0]), "a");
}

TEST(ChartDrawing, LeavesTheTargetAsItWas) {
  FixedPrintTarget target;
  target.FontName = "Times New Roman";
  target.FontSize = 12;
  target.FontBold = true;
  target.CurrentX = 5;
  DrawChart(ChartOf({1, 2}), target, kFrame, kDarkChart);
  EXPECT_EQ(target.FontName, "Times New Roman");
  EXPECT_EQ(target.FontSize, 12);
  EXPECT_TRUE(target.FontBold);
  EXPECT_EQ(target.CurrentX, 5);
  EXPECT_EQ(target.ForeColor, 0u);
  EXPECT_EQ(target.LineWidth, 10);
}

// Distances between colours as normal and as red-green blind eyes see them: each colour goes
// through the matrices of deuteranopia and protanopia on linear light.
using Light = std::array<double, 3>;

double Linear(PrintColor color, int shift) {
  const double c = (color >> shift & 0xFF) / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}
Light LightOf(PrintColor color) {
  return {Linear(color, 16), Linear(color, 8), Linear(color, 0)};
}
Light Seen(const double (&eye)[3][3], const Light& light) {
  Light seen{};
  for (std::size_t i = 0; i < 3; ++i)
    for (std::size_t k = 0; k < 3; ++k) seen[i] += eye[i][k] * light[k];
  for (double& each : seen) each = std::clamp(each, 0.0, 1.0);
  return seen;
}
double Luminance(const Light& light) {
  return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}
double Distance(const Light& a, const Light& b) {
  double sum = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const double difference = std::cbrt(a[i]) - std::cbrt(b[i]);
    sum += difference * difference;
  }
  return std::sqrt(sum);
}

constexpr double kEyes[3][3][3] = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                                   {{0.367322, 0.860646, -0.227968},
                                    {0.280085, 0.672501, 0.047413},
                                    {-0.01182, 0.04294, 0.968881}},
                                   {{0.152286, 1.052583, -0.204868},
                                    {0.114503, 0.786281, 0.099216},
                                    {-0.003882, -0.048116, 1.051998}}};

template <std::size_t N>
void ExpectDistinct(const std::array<PrintColor, N>& colors, PrintColor ground) {
  for (std::size_t i = 0; i < N; ++i) {
    const double one = Luminance(LightOf(colors[i])) + 0.05;
    const double other = Luminance(LightOf(ground)) + 0.05;
    EXPECT_GE(std::max(one, other) / std::min(one, other), 2.7) << std::hex << colors[i];
    for (std::size_t k = i + 1; k < N; ++k)
      for (const auto& eye : kEyes)
        EXPECT_GT(Distance(Seen(eye, LightOf(colors[i])), Seen(eye, LightOf(colors[k]))), 0.1)
            << std::hex << colors[i] << " and " << colors[k];
  }
}

TEST(ChartColors, DifferForColourBlindEyesOnLightAndOnDarkGround) {
  for (const ChartColors* colors : {&kLightChart, &kDarkChart}) {
    ExpectDistinct(colors->sets, colors->ground);
    ExpectDistinct(colors->slices, colors->ground);
  }
}

}  // namespace
}  // namespace tallyroll
