#pragma once
// Whom mail goes to: customers by kind, which of them are ticked, and the lines of an address.
#include <optional>

#include "links/ticked_list.h"
#include "papers/document_run.h"
#include "store/session.h"

namespace DmCol {
enum { Tick = TickedList::Tick, Name, PostCode, Building, Address };
}

enum class DmKind { General, Volume, All };
enum class DmPaper { Envelope, Label };

/** "한빛아파트 101동 305호"; '' without a building. A part that is not known is left out. */
QString buildingLine(const QString& building, const QString& dong, const QString& ho);
/** Postcode, address, building and name, each on a line of its own, an address that is too long on several; empty ones
 *  are left out. width: half-width characters of a line. */
std::vector<QStringList> addressLines(const QString& postCode, const QString& address,
                                      const QString& building, const QString& name, int width);

const pc::PaperForm& dmForm(DmPaper paper);

class DmList : public TickedList {
 public:
  explicit DmList(Session& session);

  /** No one is ticked afterwards. False after a failed query has been told. */
  bool load(DmKind kind);
  /** Where the papers go; '' after telling that no printer was chosen. */
  QString printer() const;
  /** The ticked rows as papers, in the order of the list; nothing after telling that none is ticked. */
  std::optional<DocumentRun> run(DmPaper paper) const;

 private:
  Session& session_;
};
