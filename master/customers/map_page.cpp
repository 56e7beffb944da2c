#include "master/customers/map_page.h"

#include <QFile>

#include "store/session.h"
#include "store/settings_table.h"

namespace {

constexpr double left = 0.7, top = 0.7;  ///< inches
constexpr double lineStep = 0.32, labelWidth = 1.1;
constexpr double boxTop = 2.5, boxFoot = 0.7;

}  // namespace

CustomerMap readCustomerMap(const Session& session) {
  const pc::Settings& settings = session.pc.settings;
  const QString path = settings.read(setting::MapPrintFile);
  CustomerMap map{.client = settings.read(setting::MapPrintName),
                  .phone = settings.read(setting::MapPrintTel),
                  .address = settings.read(setting::MapPrintAddress),
                  .picture = {}};
  QFile file(session.pc.paths.native(path));
  if (!path.isEmpty() && file.open(QIODevice::ReadOnly)) map.picture = file.readAll();
  return map;
}

void MapPage::draw(pc::PrintJob& job, int) const {
  const double width = paper().width - 2 * left;
  job.setFont({"굴림체", 17, true});
  const QString title = "[ 고객 약도 정보 ]";
  job.text((paper().width - job.textWidth(title)) / 2, top, title);
  job.setFont({"굴림체", 11, false});
  double at = top + 2 * lineStep;
  const std::pair<const char*, const QString&> lines[] = {
      {"고 객 명  ", map_.client}, {"전화번호  ", map_.phone}, {"주    소  ", map_.address}};
  for (const auto& [label, value] : lines) {
    job.text(left, at, label);
    job.text(left + labelWidth, at, value);
    at += lineStep;
  }
  const double height = paper().height - boxTop - boxFoot;
  for (const double y : {boxTop, boxTop + height}) job.line(left, y, left + width, y);
  for (const double x : {left, left + width}) job.line(x, boxTop, x, boxTop + height);
  if (!map_.picture.isEmpty())
    return job.picture(left + 0.05, boxTop + 0.05, width - 0.1, height - 0.1, map_.picture);
  const QString none = "등록된 약도 그림이 없습니다.";
  job.text((paper().width - job.textWidth(none)) / 2, boxTop + height / 2, none);
}
