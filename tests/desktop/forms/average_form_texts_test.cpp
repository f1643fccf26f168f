// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the forms of the averages, word for word: teachers know them by heart.
#include <gtest/gtest.h>

#include "tests/desktop/forms/form_texts.h"

namespace tallyroll {
namespace {

// Both Portals that set weights.
Texts WeightsTexts(const char* title) {
  return {{"", title},
          {"newgroup", "Weights"},
          {"newwt", "&New"},
          {"equal", "&Equal"},
          {"oldwt", "&Use Old"},
          {"clearwt", "C&lear"},
          {"clipgroup", "Clip Board"},
          {"paste", "Copy &To"},
          {"frombd", "Paste &From"},
          {"types", "T&ypes"},
          {"sumgroup", "Must = 100     excluding       'Extra Credit'"},
          {"totals_label", "Total"},
          {"extra_label", "Extra Credit"},
          {"dropgroup", "Lowest grade"},
          {"dropyn", "Drop Single Lowest Grade"},
          {"droptype", "Drop Lowest by Type"},
          {"labs", "Drop \"ABS\"/\"EXC\" or  \"NEW\" as lowest"},
          {"print", "&Print"},
          {"previewchange", "Pre&view Change"},
          {"exit", "C&ontinue"},
          {"cancel", "&Cancel"}};
}

TEST(AverageFormTexts, WeightsOfItems) {
  EXPECT_EQ(TextsOf("frmweights"), WeightsTexts("Weights Portal - Individual Items"));
}

TEST(AverageFormTexts, WeightsOfTypes) {
  Texts texts = WeightsTexts("Weights Portals - Type");
  texts["redistgroup"] = "Disallow Weights Redistribution";
  texts["redist"] =
      "Disallow redist. of weights across Types when student has only ABS/EXC in a Type";
  EXPECT_EQ(TextsOf("frmpercents"), texts);
}

struct Form {
  const char* portal;
  Texts texts;
};

const Form kAverageForms[] = {
    {"frmdropgrade",
     {{"", "Drop Lowest Grade Portal"},
      {"hint", "A key in the \"Drop\" column turns N into Y and back."},
      {"exit", "&Close"}}},
    {"frmtotals", {{"", "Totals for Weights Entered"}, {"exit", "&Close"}}},
    {"frmpoints",
     {{"", "Points Portal"},
      {"sumgroup", "Points"},
      {"totals_label", "Total Points"},
      {"extra_label", "Extra Credit"},
      {"clipgroup", "Clip Board"},
      {"paste", "Copy &To"},
      {"frombd", "Paste &From"},
      {"Sumanry", "&Summary"},
      {"hint", "A key in the last column turns Y into N and back."},
      {"print", "&Print"},
      {"previewchange", "Pre&view Change"},
      {"exit", "C&ontinue"},
      {"cancel", "&Cancel"}}},
    {"frmroundoff",
     {{"", "Rounding Modification Portal"},
      {"modegroup", "Average rounding"},
      {"noskip", "&Enable Rounding"},
      {"skip", "&Skip Rounding"},
      {"formgroup", "Final grades"},
      {"finalletter", "Letter Values"},
      {"finalnumber", "Numeric Values"},
      {"usegroup", "Use Rounding Values"},
      {"usescale0", "&Default"},
      {"usescale1", "&1"},
      {"usescale2", "&2"},
      {"usescale3", "&3"},
      {"grayed", "(Current selection grayed-out)"},
      {"savegroup", "Save Rounding Values as"},
      {"savescale1", "1"},
      {"savescale2", "2"},
      {"savescale3", "3"},
      {"clipgroup", "Clip Board"},
      {"writeclip", "Copy &To"},
      {"readclip", "Paste &From"},
      {"previewchange", "Pre&view Change"},
      {"continue", "&Screen"},
      {"contprinter", "&Printer"},
      {"previewchange", "Pre&view Change"},
      {"continueprint", "C&ontinue"},
      {"cancel", "&Cancel"}}},
    {"frmgradesave",
     {{"", "Save Grade Portal"},
      {"title_label", "Title of  &Grade"},
      {"code_label", "&Up to 3 Character Code"},
      {"save", "&Save"},
      {"cancel", "&Cancel"}}},
    {"frmoptions",
     {{"", "Current Weights and Rounding Summary Portal"},
      {"methodgroup", "Weights"},
      {"totals_label", "Total Points"},
      {"extra_label", "Extra Credit"},
      {"roundgroup", "Rounding"},
      {"dropgroup", "Lowest grade and redistribution"},
      {"dropabs_label", "\"ABS\"/\"EXC\" as lowest"},
      {"dis_label", "Disallow Weights Redist."},
      {"dlt_label", "Lowest by Type"},
      {"dsl_label", "Single Lowest"},
      {"Change1", "Change &Weights"},
      {"Change2", "Change &Rounding"},
      {"continue", "&Continue"},
      {"EXIT", "C&ancel"}}},
    {"frmscrnavg",
     {{"", "Grades Portal"},
      {"lstName_label", "St&udents"},
      {"comments_label", "Co&mments"},
      {"avg_label", "Exact Average"},
      {"suggr_label", "Rounded Average"},
      {"PREVIOUS", "&Previous"},
      {"nextt", "&Next"},
      {"explain", "&Explain Average"},
      {"exit", "E&xit"}}},
    {"frminfo",
     {{"", "Show Information Portal"},
      {"list1_label", "St&udents"},
      {"comments_label", "Co&mments"},
      {"mnuprevious", "&Previous"},
      {"mnuext", "&Next"},
      {"mnugraph", "&Graph"},
      {"explain", "&Explain Average"},
      {"exit", "E&xit"}}}};

TEST(AverageFormTexts, TheOthers) {
  for (const auto& [portal, texts] : kAverageForms) EXPECT_EQ(TextsOf(portal), texts) << portal;
}

}  // namespace
}  // namespace tallyroll
