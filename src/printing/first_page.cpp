// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/first_page.h"

#include <utility>
#include <vector>

#include "averages/explained/untouched_class.h"
#include "platform/surroundings.h"
#include "printing/print_run.h"
#include "printing/printmsg.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"

namespace tallyroll {

// While it lives, the page's run and choice are those in work. An average writes the final grade of
// every student it comes to: they are put back.
class FirstPage::InWork {
 public:
  explicit InWork(FirstPage& page) : page_(page), untouched_(CurrentStudent) {
    for (const Student& student : Current().Students)
      final_grades_.push_back(student.Marks.empty() ? ShortText() : student.Marks[0]);
    Swap();
  }
  ~InWork() {
    Swap();
    for (std::size_t s = 0; s < final_grades_.size(); ++s)
      if (auto& marks = Current().Students[s].Marks; !marks.empty()) marks[0] = final_grades_[s];
  }
  InWork(const InWork&) = delete;
  InWork& operator=(const InWork&) = delete;

 private:
  void Swap() {
    std::swap(Job, page_.job_);
    std::swap(Choice, page_.choice_);
  }

  FirstPage& page_;
  UntouchedClass untouched_;
  std::vector<ShortText> final_grades_;
};

std::string FirstPage::LayOut(i16 tab, int code, const ReportChoice& choice) {
  job_ = PrintJob();
  job_.PrintFlag = kPrintRuns;
  job_.PrintTab = tab;
  job_.ReportCode = static_cast<i16>(code);
  job_.PrintTitle = OfferedTitle();
  job_.FirstPageAlone = true;
  choice_ = choice;
  const InWork in_work(*this);
  if (std::string nothing = NothingToReport(); !nothing.empty()) return nothing;
  const auto sheet = Platform().MakePrintBox(PrintsLandscape());
  if (!sheet) return {};
  width_ = sheet->Width;
  height_ = sheet->Height;
  printable_width_ = sheet->ScaleWidth;
  printable_height_ = sheet->ScaleHeight;
  ClearPageTable();
  PrepareTarget(*sheet);
  return LayOutRows(*sheet) ? std::string() : Job.Notice;
}

void FirstPage::Draw(PrintTarget& target) {
  const InWork in_work(*this);
  target.ScaleWidth = printable_width_;
  target.ScaleHeight = printable_height_;
  PrepareTarget(target);
  RenderPage(target, 1);
}

}  // namespace tallyroll
