#include "ui/grid/grid_menu.h"

#include <QMenu>

#include "ui/forms/form.h"
#include "ui/forms/form_ini.h"
#include "ui/grid/excel_export.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int leastPoints = 8, mostPoints = 20;

/** A size the operator types: 8 to 20, 0 for the design's own; nothing when he leaves or types anything else. */
std::optional<int> askPoints(Prompts& prompts, const QString& question, const QString& title, int now) {
  const auto typed = prompts.InputBox(question, title, QString::number(now));
  if (!typed) return {};
  bool numeric = false;
  const int points = typed->trimmed().toInt(&numeric);
  if (!numeric || (points != 0 && (points < leastPoints || points > mostPoints))) {
    prompts.MsgWarn(u"8에서 20 사이의 숫자 또는 0을 입력하세요."_s, title);
    return {};
  }
  return points;
}

void changeRowHeight(Form& form, Spread& grid) {
  const auto points =
      askPoints(form.session().prompts, u"변경할 그리드의 줄높이를 입력하세요.(입력범위: 8~20, 0:기본값)"_s,
                u"그리드 줄높이 변경"_s, grid.rowHeight());
  if (!points) return;
  grid.setRowHeight(*points);
  FormIni(form.session().pc.paths).SaveSpreadGeneral(form, grid);
}

void changeFontSize(Form& form, Spread& grid) {
  const auto points =
      askPoints(form.session().prompts, u"변경할 그리드의 글자크기를 입력하세요.(입력범위: 8~20, 0:기본값)"_s,
                u"글자크기 변경"_s, grid.fontSize());
  if (!points) return;
  grid.setFontSize(*points > 0 ? *points : 10);
  FormIni(form.session().pc.paths).SaveSpreadGeneral(form, grid);
}

void resetMemory(Form& form) {
  if (!form.session().prompts.MsgAsk(u"정말 수정하시겠습니까?"_s, u"폼 및 그리드 설정 초기화"_s)) return;
  form.forgetMemory();
}

}  // namespace

void showGridMenu(Form& form, Spread& grid, const QPoint& place) {
  auto* const menu = new QMenu(&grid);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto entry = [&](const QString& text, const std::function<void()>& work) {
    QObject::connect(menu->addAction(text), &QAction::triggered, &grid,
                     [&form, work] { form.command(work); });
  };
  entry(u"그리드 줄높이 변경"_s, [&form, &grid] { changeRowHeight(form, grid); });
  entry(u"글자크기        변경"_s, [&form, &grid] { changeFontSize(form, grid); });
  entry(u"폼 및 그리드 설정 초기화"_s, [&form] { resetMemory(form); });
  menu->addSeparator();
  entry(u"복사"_s, [&grid] { grid.copy(); });
  entry(u"엑셀로 보내기"_s,
        [&form, &grid] { ExportToExcelFile(form.session(), grid.model(), form.windowTitle()); });
  menu->popup(place);
}
