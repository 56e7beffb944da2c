#include "documents/document_papers.h"

#include "documents/document_party.h"

DocumentLayout layoutOf(const PrintMethodChoice& choice) {
  if (choice.dot) return DocumentLayout::Dot;
  return choice.paper == 1   ? DocumentLayout::FullA4
         : choice.paper == 2 ? DocumentLayout::HalfA4B
                             : DocumentLayout::HalfA4;
}

bool hasDocuments(Session& session, const TickColumn& ticks, const QString& kind) {
  if (!readSupplier(session)) {
    session.prompts.MsgWarn("사용자등록부터 하셔야 합니다");
    return false;
  }
  if (!ticks.ticked().empty()) return true;
  session.prompts.MsgInfo("발행할 거래내역을 선택하세요.", kind);
  return false;
}

pc::PaperShift documentShift(const Session& session, const QString& kind, DocumentLayout layout) {
  const DocumentMargins margins = documentMargins(session, kind);
  pc::PaperShift shift = margins.shift();
  if (layout == DocumentLayout::FullA4 && margins.left.isEmpty()) shift.columns = drawnFormColumns;
  return shift;
}
