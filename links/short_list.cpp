#include "links/short_list.h"

#include <algorithm>

#include "master/registers/row_change.h"
#include "store/data_access.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

const ShortListKind& vehicleList() {
  static const ShortListKind kind{
      u"frmCarRes"_s,
      u"차량/담당자 등록/선택"_s,
      u"CaRes"_s,
      {{u"CarNo"_s, u"차량번호"_s, 14, 4, true, false}, {u"ResName"_s, u"운행담당자"_s, 20, 20, false, true}},
      u"차량/담당자 관리자"_s,
      u"차량/담당자 내용을 저장하시겠습니까?"_s,
      {u"※ 차량번호"_s, u"숫자    네자리만 입력"_s, u"※ 삭제"_s, u"Delete"_s}};
  return kind;
}

const ShortListKind& repairList() {
  static const ShortListKind kind{u"frmCaRepairUnit"_s,
                                  u"정비부품 등록/선택"_s,
                                  u"CaRepair"_s,
                                  {{u"CarRepair"_s, u"정비부품"_s, 42, 100}},
                                  u"정비부품 관리자"_s,
                                  u"정비부품/내역을 저장하시겠습니까?"_s,
                                  {u"정비내역 목록작성, 삭제:DELETE"_s, {}}};
  return kind;
}

ShortList::ShortList(Session& session, const ShortListKind& kind) : session_(session), kind_(kind) {
  std::vector<SpreadColumn> columns;
  for (const ShortListField& field : kind.fields)
    columns.push_back(field.staff ? column::choice(field.header, field.width, {})
                                  : column::limited(field.maxLength,
                                                    field.digits ? column::centred(field.header, field.width)
                                                                 : column::text(field.header, field.width)));
  grid_.setColumns(std::move(columns));
}

ShortList::Rows ShortList::stored() const {
  Rows rows;
  for (jet::Recordset rs = session_.dbBasic.OpenRecordset(u"Select * From "_s + kind_.table); !rs.atEnd();
       rs.MoveNext()) {
    std::vector<QString>& row = rows.emplace_back();
    for (const ShortListField& field : kind_.fields) row.push_back(rs[field.name].toText());
  }
  return rows;
}

ShortList::Rows ShortList::onScreen() const {
  Rows rows;
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    if (isEmpty(row)) continue;
    std::vector<QString>& cells = rows.emplace_back();
    for (int col = 1; col <= grid_.MaxCols(); ++col) cells.push_back(grid_.text(row, col));
  }
  return rows;
}

bool ShortList::load() {
  for (size_t at = 0; at < kind_.fields.size(); ++at) {
    if (!kind_.fields[at].staff) continue;
    QStringList names;
    jet::Recordset staff;
    if (!OpenSnapshot(session_.prompts, session_.dbBasic, staff, u"Select * From Response"_s)) return false;
    for (; !staff.atEnd(); staff.MoveNext()) names << staff[u"Name"_s].toText();
    grid_.setCombo(int(at) + 1, names);
  }
  show(stored());
  return true;
}

/** As the table holds them; an empty one for the next stands below. */
void ShortList::show(Rows rows) {
  read_ = rows;
  rows.emplace_back(kind_.fields.size());
  grid_.setRows(std::move(rows));
}

bool ShortList::isEmpty(int row) const {
  for (int col = 1; col <= grid_.MaxCols(); ++col)
    if (!grid_.text(row, col).isEmpty()) return false;
  return true;
}

bool ShortList::finishCell(int row, int col, const QString& typed) {
  const ShortListField& field = kind_.fields[size_t(col - 1)];
  const QString text = typed.trimmed();
  const bool allDigits =
      std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  if (field.digits && (!allDigits || text.size() > field.maxLength)) {
    session_.prompts.MsgWarn(field.header + u"는 숫자 네자리만 입력합니다."_s, kind_.title);
    return false;
  }
  if (textTooLong(session_, kind_.table, {{field.name, text}}, {{field.name, field.header}}, kind_.title))
    return false;
  grid_.setText(row, col, text);
  if (row == grid_.MaxRows() && !isEmpty(row)) grid_.setMaxRows(row + 1);
  return true;
}

bool ShortList::changed() const {
  return onScreen() != read_;
}

bool ShortList::remove(int row) {
  if (row < 1 || row > grid_.MaxRows() || isEmpty(row)) return false;
  if (!session_.prompts.MsgAsk(u"선택된 사항을 지우시겠습니까?"_s, kind_.title, false)) return false;
  grid_.deleteRow(row);
  return true;
}

bool ShortList::askToSave() const {
  return session_.prompts.MsgAsk(kind_.question, kind_.title);
}

QString ShortList::insertStatement(const std::vector<QString>& row) const {
  QStringList names, values;
  for (size_t at = 0; at < row.size(); ++at) {
    names << kind_.fields[at].name;
    values << u"'"_s + plainText(row[at]) + u"'"_s;
  }
  return u"Insert Into "_s + kind_.table + u"("_s + names.join(u", "_s) + u") Values("_s +
         values.join(u","_s) + u")"_s;
}

namespace {

/** Takes one row that is the same out; False when there is none. */
template <class Rows>
bool takeOut(Rows& rows, const typename Rows::value_type& row) {
  const auto at = std::find(rows.begin(), rows.end(), row);
  if (at == rows.end()) return false;
  rows.erase(at);
  return true;
}

}  // namespace

void ShortList::save() {
  Rows kept = onScreen();
  // A text that no statement can hold ends the save before the old rows are gone.
  for (const std::vector<QString>& row : kept) jet::requirePlain(insertStatement(row));
  int added = 0;
  session_.dbBasic.Together([&] {
    Rows theirs = stored(), gone;
    for (const std::vector<QString>& row : read_)
      if (!takeOut(theirs, row)) gone.push_back(row);
    for (const std::vector<QString>& row : gone) takeOut(kept, row);
    added = int(theirs.size());
    kept.insert(kept.end(), theirs.begin(), theirs.end());
    session_.dbBasic.Execute(u"Delete * From "_s + kind_.table);
    for (const std::vector<QString>& row : kept) session_.dbBasic.Execute(insertStatement(row));
  });
  // What was written, without a further query: one that fails would leave the screen of before the save.
  show(std::move(kept));
  if (added > 0)
    session_.prompts.MsgInfo(u"다른 PC에서 추가한 %1줄을 함께 저장했습니다."_s.arg(added), kind_.title);
}
