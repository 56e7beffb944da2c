#pragma once
// The forms' font names and the installed fonts that stand for them.
#include <QFont>
#include <QStringList>

namespace pc {
struct PrintFont;
}

/** The font a form asks for, in the size that gives its own pitch. The form's own font where the PC has it; else:
 *  "굴림체", "돋움체"   NanumGothicCoding: Hangul twice as wide as digits and blanks, so padded amounts line up
 *  "굴림", "돋움"       Baekmuk Gulim, Baekmuk Dotum
 *  "OCR-B-1"            OCR B, made smaller until 12 points give ten characters an inch, as the bank's reader wants
 *  Any other family is taken as it is named. */
QFont printFont(const pc::PrintFont& font);

/** The forms' fonts for which this PC has neither; '' for none. An unknown family silently becomes another one. */
QStringList missingPrintFonts();
