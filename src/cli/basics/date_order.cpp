// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/date_order.h"

#include <langinfo.h>
#include <locale.h>

namespace tallyroll {
namespace {

// What may stand between the percent sign and the letter: "%-d", "%Od", "%Ey".
bool IsFlag(char c) {
  return c == '-' || c == '_' || c == '0' || c == '^' || c == 'E' || c == 'O';
}

}  // namespace

DateOrder DateOrderOfFormat(std::string_view format) {
  // Letters between the fields may be words of the language, so only conversions are looked at.
  std::size_t at = format.find('%');
  while (at + 1 < format.size() && IsFlag(format[at + 1])) ++at;
  switch (at + 1 < format.size() ? format[at + 1] : 'm') {
    case 'd':
    case 'e':
      return DateOrder::kDayFirst;
    case 'y':
    case 'Y':
    case 'C':
    case 'F':
    case 'G':
      return DateOrder::kYearFirst;
    default:
      return DateOrder::kMonthFirst;
  }
}

DateOrder SystemDateOrder() {
  const locale_t user = newlocale(LC_TIME_MASK, "", locale_t{});
  if (!user) return DateOrder::kMonthFirst;
  const DateOrder order = DateOrderOfFormat(nl_langinfo_l(D_FMT, user));
  freelocale(user);
  return order;
}

DateOrder DateOrderOfOption(std::string_view value) {
  if (value == "mdy") return DateOrder::kMonthFirst;
  if (value == "dmy") return DateOrder::kDayFirst;
  if (value == "ymd") return DateOrder::kYearFirst;
  return SystemDateOrder();
}

}  // namespace tallyroll
