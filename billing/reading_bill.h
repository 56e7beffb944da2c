#pragma once
// The law of the bill: from two readings and a price to use, money, late charge, safety fee and issued amount. It works
// on one row of the sheet and stores nothing. Money in won; a blank cell is 0.
struct ReadingSheet;

/** Use, amount, late charge, fee and total of a row. When the late charge's base cannot be read, the row keeps its late
 *  charge, fee and total. Asks whether a collection date there is to become the reading day. Throws jet::Error for a
 *  sum beyond a currency's range. */
void CalcReadingRow(ReadingSheet& sheet, int row);
/** total = RoundByPayState(amount + arrears + late charge in whole won + fee - paid) */
void CalcRowTotal(ReadingSheet& sheet, int row);

// A sum typed by hand moves the total by the difference; nothing is rounded and nothing else is computed. The cell
// holds the new sum already.
void ApplyPayEdit(ReadingSheet& sheet, double before, int row);
void ApplyDelayEdit(ReadingSheet& sheet, double before, int row);
void ApplyManageEdit(ReadingSheet& sheet, double before, int row);

/** now - before of a meter, to four decimal places, so that 10.3 - 10.1 is 0.2. */
double meterDifference(double now, double before);
