#pragma once
// A made-up LPG retailer in a small town: what ./run sample, the sample day and the pictures are played on.
#include <functional>

#include "pc/pc.h"
#include "ui/model/prompts.h"

class QDate;
struct ReadingSheet;
struct Session;

namespace samples {

/** Fills the data folder of an empty PC: about 300 customers of all three house styles, catalogue, staff, suppliers,
 *  postcodes, two years of sales up to the day before the PC's clock, and this year's meter book with every month
 *  before the clock's read, billed and mostly paid. The same clock gives the same books, and every balance and stock
 *  figure equals what its lines add up to. Throws jet::Error. */
void makeBooks(pc::Pc& pc, Prompts& prompts);

/** The three meter books one after another as they show that month, with the clock set to nine on that day: work is given
 *  every row, a book's rows in one group. */
void eachReading(Session& session, const QDate& day, int month,
                 const std::function<void(ReadingSheet& sheet, int row)>& work);

/** What lay in stock of every item before the first line: pieces of each cylinder, pieces of each fitting. */
inline constexpr qint64 openingFull = 60, openingEmpty = 25, openingFittings = 30;
/** The sample company's password. */
inline constexpr char password[] = "1234";
/** The customer who calls on the sample day, and what is owed for gas, won. */
inline constexpr char callerName[] = "해오름식당", callerTel[] = "053-123-4567";
inline constexpr qint64 callerOwes = 50000;

}  // namespace samples
