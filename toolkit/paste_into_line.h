// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;

/// Makes one line of what is pasted or dropped into a line edit: a line end at its end is dropped, a tab
/// becomes a blank. A text of several lines is shown first, since their ends become blanks too.
void make_one_line_of_pastes(QLineEdit& edit);
