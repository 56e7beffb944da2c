#pragma once
// How a customer lives: it decides how he is named, which meter book he stands in and which rates hold for him.
#include <QString>

/** As Client.HouseStyle stores it. */
enum class HouseStyle { Individual = 0, Apartment = 1, MultiHousehold = 2 };

/** The number of the book's tab, "1" to "3", by which a form's page is asked for. */
inline QString pageOfBook(HouseStyle book) {
  return QString::number(int(book) + 1);
}
/** The nearest book of a page's number. */
inline HouseStyle bookOfPage(const QString& page) {
  return HouseStyle(qBound(0, page.toInt() - 1, 2));
}
