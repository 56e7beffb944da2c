#pragma once
// The ledger's tables and columns are not in every data file: an operation on one that is missing fails softly.
#include "store/jet/error.h"
#include "store/jet/error_texts.h"

/** Runs work; False where its statement found no such table or column or was refused for its text, for the caller to
 *  tell in his own words. A failure of the store itself (disk, lock, connection) goes on. */
template <class Work>
bool softly(Work work) {
  try {
    work();
    return true;
  } catch (const jet::Error& error) {
    if (jet::isStoreFailure(error.number())) throw;
    return false;
  }
}
