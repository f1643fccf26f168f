// SPDX-License-Identifier: GPL-3.0-or-later
// How the Print Preview Portal goes to the page on which a student stands.
#include <string>

#include "base/number_text.h"
#include "base/text.h"
#include "find/frmfind.h"
#include "printing/frmprintpre.h"
#include "printing/page/print_job.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {

// Whoever is on no page is listed as well, so that nobody is looked for in vain.
std::vector<FindEntry> frmprintpre::StudentsOfReport() {
  const Class& c = Current();
  std::vector<FindEntry> entries;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    const int page = PageOfStudent(i);
    entries.push_back({.kind = FindKind::kStudent,
                       .text = PlainName(student),
                       .place = "Student, ID " + std::string(Trim(student.id)),
                       .key = page > 0 ? "Page " + PlainNumberText(page) : "",
                       .reason = page > 0 ? "" : "The student stands on no page of this report.",
                       .run = [this, page] { ShowPage(page - 1); }});
  }
  return entries;
}

void frmprintpre::findstudent_Click() {
  if (!Busy()) RunFindAmong([this] { return StudentsOfReport(); });
}

}  // namespace tallyroll
