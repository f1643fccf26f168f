// SPDX-License-Identifier: GPL-3.0-or-later
// When grades or their types change so far that the weights have to be given again.
#pragma once

#include <string_view>

#include "store/records.h"

namespace tallyroll {

// `Method` while weights wait to be given.
inline constexpr i16 kNoMethod = 5;

// Whether an Instrument of the current class other than `except` has this typecode; blanks around
// it do not count.
bool TypeInUse(std::string_view typecode, int except = 0);

// No method is in force any more: averages wait until a weights Portal is accepted again.
void ForgetMethod();

// The three events that may take the method away. Points alone (method 2) need no weights, and
// weights by type (1 and 3) still hold while the set of types in use stays the same.
void GradeAdded(bool type_was_in_use);
void GradeDeleted(bool type_still_in_use);
void GradeTypeChanged(bool same_types_in_use);

}  // namespace tallyroll
