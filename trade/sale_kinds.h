#pragma once
// The kinds of a sale line and the three sheets they stand on: one table for labels, combo places and searches.
#include <QString>
#include <QStringList>

/** The tabs of the sale screen, by index. */
enum class SaleSheet { General = 0, Volume = 1, Material = 2 };

/** Sale.SaleGubun. */
enum SaleKind {
  SaleGas = 1,
  SaleCylinder = 2,
  SaleFullCylinder = 3,
  SaleCollection = 4,
  SaleLoan = 5,
  SaleReturn = 6,
  SaleMaterial = 7,
  SaleMaterialCollection = 8
};

/** The labels of the sheet's combo cell, in the order of its positions. */
QStringList saleLabels(SaleSheet sheet);

/** Position to code; a place outside the list (an untouched cell) is the sheet's first kind. */
int saleKindAt(SaleSheet sheet, int position);

/** Code to position. Kept: a code outside the sheet's kinds stands at the last position. */
int salePositionOf(SaleSheet sheet, int kind);

/** '' for a code outside the table. */
QString saleLabel(int kind);

/** What the item search is asked for; '' for kinds that have no item. */
QString saleSearchCode(int kind);

inline bool isCollection(int kind) {
  return kind == SaleCollection || kind == SaleMaterialCollection;
}
