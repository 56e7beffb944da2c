#include "briefs/form_brief_asks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>

#include "briefs/brief_run.h"
#include "master/customers/client_entry.h"
#include "master/registers/form_lookups.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/year_file.h"
#include "ui/forms/keys.h"

using namespace Qt::StringLiterals;

namespace {

QHBoxLayout* tightRow(QWidget* box) {
  auto* const row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(5);
  return row;
}

QStringList yearsOnDisk(const Session& session) {
  QStringList years;
  for (const int year : yearsThere(session)) years.prepend(QString::number(year));
  if (const QString open = QString::number(openedYear(session)); !years.contains(open)) years.prepend(open);
  return years;
}

int placeOf(QWidget* group) {
  const auto options = group->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  for (int at = 0; at < options.size(); ++at)
    if (options[at]->isChecked()) return at;
  return 0;
}

QString answerOf(QWidget* box) {
  if (auto* const day = dynamic_cast<DateBox*>(box)) return day->dateText();
  if (auto* const combo = qobject_cast<QComboBox*>(box)) return combo->currentText();
  if (auto* const check = qobject_cast<QCheckBox*>(box)) return check->isChecked() ? u"1"_s : QString();
  if (auto* const line = qobject_cast<QLineEdit*>(box)) return line->text().trimmed();
  return {};
}

QString monthOf(QWidget* box) {
  return answerOf(box).left(2);
}

}  // namespace

BriefAsks::BriefAsks(Form& form, FormContext& context, const BriefRun& run)
    : QWidget(&form), form_(form), context_(context), run_(run) {
  QHBoxLayout* const row = tightRow(this);
  puts_.reserve(run.brief().questions.size());
  for (const BriefQuestion& question : run.brief().questions) build(question, row);
  row->addStretch(1);
}

void BriefAsks::build(const BriefQuestion& question, QHBoxLayout* row) {
  auto* const panel = new QWidget(this);
  QHBoxLayout* const line = tightRow(panel);
  Put& put = puts_.emplace_back(Put{&question, panel, {}});
  put.boxes = makeBoxes(question, panel);
  if (!question.label.isEmpty() && question.kind != AskKind::Check) {
    auto* const label = new QLabel(question.label, panel);
    label->setBuddy(put.boxes.front());
    line->addWidget(label);
  }
  for (QWidget* const box : put.boxes) {
    if (box != put.boxes.front()) line->addWidget(new QLabel(u"~"_s, panel));
    line->addWidget(box);
    if (question.kind == AskKind::Options) {
      for (QRadioButton* const option : box->findChildren<QRadioButton*>())
        form_.setHelp(option, question.help);
      boxes_ << box->findChildren<QRadioButton*>().value(0);
    } else {
      form_.setHelp(box, question.help);
      if (question.kind != AskKind::Check) boxes_ << box;
    }
  }
  row->addWidget(panel);
  row->addSpacing(8);
}

QList<QWidget*> BriefAsks::makeBoxes(const BriefQuestion& question, QWidget* panel) {
  const QDate today = context_.session.pc.clock.today(), first(today.year(), today.month(), 1);
  const QString& name = question.name;
  switch (question.kind) {
    case AskKind::Year: {
      auto* const box = new QComboBox(panel);
      box->setObjectName(name);
      box->addItems(yearsOnDisk(context_.session));
      box->setCurrentText(QString::number(openedYear(context_.session)));
      return {box};
    }
    case AskKind::Month:
      return {monthBox(name, panel)};
    case AskKind::MonthPeriod:
      return {monthBox(name + u"From"_s, panel), monthBox(name + u"To"_s, panel)};
    case AskKind::Period:
      return {
          dayBox(name + u"From"_s, question.fromNewYear ? QDate(today.year(), 1, 1) : first, false, panel),
          dayBox(name + u"To"_s, today, false, panel)};
    case AskKind::MonthDayPeriod:
      return {dayBox(name + u"From"_s, first, true, panel), dayBox(name + u"To"_s, today, true, panel)};
    case AskKind::Options:
      return {optionGroup(question, panel)};
    case AskKind::Check:
      return {checkBox(question, panel)};
    case AskKind::Choice: {
      auto* const box = new QComboBox(panel);
      box->setObjectName(name);
      box->setMinimumWidth(20 * fontMetrics().horizontalAdvance(u'0'));
      return {box};
    }
    case AskKind::Person:
    case AskKind::Station:
    case AskKind::Client:
      return {pickBox(question, panel)};
    case AskKind::Text:
      break;
  }
  auto* const box = new QLineEdit(panel);
  box->setObjectName(name);
  box->setMaxLength(40);
  box->setFixedWidth((question.anew ? 7 : 16) * box->fontMetrics().horizontalAdvance(u'0') + 16);
  return {box};
}

QWidget* BriefAsks::dayBox(const QString& name, const QDate& day, bool monthDay, QWidget* panel) {
  auto* const box = new DateBox(monthDay ? DateBox::Mask::MonthDay : DateBox::Mask::YearMonthDay, panel);
  box->setObjectName(name);
  box->setDateText(day.toString(monthDay ? u"MM-dd"_s : u"yyyy-MM-dd"_s));
  box->setFixedWidth((monthDay ? 7 : 12) * box->fontMetrics().horizontalAdvance(u'0') + 16);
  if (!monthDay) attachDate(form_, context_.pickers, box);
  return box;
}

QWidget* BriefAsks::monthBox(const QString& name, QWidget* panel) {
  auto* const box = new QComboBox(panel);
  box->setObjectName(name);
  for (int each = 1; each <= 12; ++each) box->addItem(twoDigits(each) + u"월"_s);
  box->setCurrentIndex(context_.session.pc.clock.today().month() - 1);
  box->setMaxVisibleItems(12);
  return box;
}

QWidget* BriefAsks::optionGroup(const BriefQuestion& question, QWidget* panel) {
  auto* const group = new QWidget(panel);
  group->setObjectName(question.name);
  QHBoxLayout* const row = tightRow(group);
  int at = 0;
  for (const QString& entry : question.entries(context_.session, 0)) {
    auto* const option = new QRadioButton(entry, group);
    option->setObjectName(question.name + QString::number(at));
    option->setChecked(at++ == 0);
    row->addWidget(option);
  }
  return group;
}

QWidget* BriefAsks::checkBox(const BriefQuestion& question, QWidget* panel) {
  auto* const box = new QCheckBox(question.label, panel);
  box->setObjectName(question.name);
  pc::Settings& settings = context_.session.pc.settings;
  const pc::Setting* const remembered = question.remembered;
  box->setChecked(remembered && settings.read(*remembered) == "1"_L1);
  connect(box, &QCheckBox::toggled, this, [this, &settings, remembered](bool on) {
    if (remembered) settings.write(*remembered, on);
    turn(page_, false);
    if (turned) turned();
  });
  return box;
}

// --- what is found by search ------------------------------------------------------------------------------------

QWidget* BriefAsks::pickBox(const BriefQuestion& question, QWidget* panel) {
  auto* const box = new QLineEdit(panel);
  box->setObjectName(question.name);
  box->setReadOnly(question.kind != AskKind::Client);
  if (question.kind != AskKind::Client) box->setPlaceholderText(u"(전체)"_s);
  box->setFixedWidth(20 * box->fontMetrics().horizontalAdvance(u'0') + 16);
  return box;
}

void BriefAsks::watchPicks() {
  for (const Put& put : puts_)
    if (put.question->kind == AskKind::Person || put.question->kind == AskKind::Station ||
        put.question->kind == AskKind::Client)
      put.boxes.front()->installEventFilter(this);
}

/** F12, and Enter on what is not chosen yet, search; Delete takes the choice away. */
bool BriefAsks::pickKey(QLineEdit* box, int key) {
  const auto put = std::ranges::find_if(puts_, [&](const Put& each) { return each.boxes.contains(box); });
  const bool enter = isEnterKey(key);
  if (key == Qt::Key_Delete && box->isReadOnly()) {
    box->clear();
    return true;
  }
  const bool chosen = put->question->kind != AskKind::Client || (put->code > 0 && put->chosen == box->text());
  if (key != Qt::Key_F12 && !(enter && !chosen)) return false;
  form_.command([&] { pick(box); });
  return true;
}

void BriefAsks::pick(QLineEdit* box) {
  Put& put = *std::ranges::find_if(puts_, [&](const Put& each) { return each.boxes.contains(box); });
  if (put.question->kind == AskKind::Client) {
    if (const auto client = context_.pickers.searchClient(box->text().trimmed(), ClientSearchMode::All))
      takeClient(put, client->code);
  } else {
    const auto name = put.question->kind == AskKind::Person ? context_.pickers.searchResponse()
                                                            : context_.pickers.searchRefill();
    if (name) box->setText(*name);
  }
  form_.activateWindow();
  Form::focus(box);
}

void BriefAsks::takeClient(Put& put, qint64 code) {
  auto* const box = static_cast<QLineEdit*>(put.boxes.front());
  put.code = 0;
  put.chosen.clear();
  jet::Recordset rs;
  if (code > 0 &&
      OpenSnapshot(
          context_.session.prompts, context_.session.dbBasic, rs,
          u"Select Name, HouseStyle, BDName, Dong, Ho From Client Where Code = "_s + QString::number(code)) &&
      !rs.atEnd()) {
    put.code = code;
    put.chosen = DisplayName(rs);
  }
  box->setText(put.chosen);
  box->setCursorPosition(0);
}

bool BriefAsks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool plain = !(key->modifiers() & ~Qt::KeypadModifier);
    if (plain && pickKey(static_cast<QLineEdit*>(watched), key->key())) return true;
  }
  return QWidget::eventFilter(watched, event);
}

// --- answers ----------------------------------------------------------------------------------------------------

BriefAsk BriefAsks::read(int page) const {
  BriefAsk ask{.page = page};
  for (const Put& put : puts_) {
    QWidget* const box = put.boxes.front();
    BriefAnswer& answer = ask.answers[put.question->name];
    answer.text = answerOf(box);
    if (put.boxes.size() > 1) answer.to = answerOf(put.boxes.back());
    switch (put.question->kind) {
      case AskKind::Month:
      case AskKind::MonthPeriod:
        answer.text = monthOf(box);
        answer.to = monthOf(put.boxes.back());
        break;
      case AskKind::Options:
        answer.place = placeOf(box);
        break;
      case AskKind::Choice:
        answer.place = static_cast<QComboBox*>(box)->currentIndex();
        break;
      case AskKind::Client:
        answer.code = put.chosen == answer.text ? put.code : 0;
        break;
      default:
        break;
    }
  }
  return ask;
}

void BriefAsks::answer(const QString& name, const QString& value) {
  for (Put& put : puts_)
    for (QWidget* const box : put.boxes) {
      if (box->objectName() != name) continue;
      if (put.question->kind == AskKind::Client)
        takeClient(put, value.toLongLong());
      else if (put.question->kind == AskKind::Options)
        box->findChildren<QRadioButton*>().value(value.toInt())->setChecked(true);
      else if (auto* const combo = qobject_cast<QComboBox*>(box))
        combo->setCurrentIndex(std::max({0, combo->findText(value), combo->findText(value + u"월"_s)}));
      else if (auto* const line = qobject_cast<QLineEdit*>(box))
        line->setText(value);
    }
}

void BriefAsks::put(const BriefAsk& ask) {
  for (const Put& put : puts_) {
    const auto found = ask.answers.constFind(put.question->name);
    if (found == ask.answers.constEnd() || put.question->kind == AskKind::Check) continue;
    const bool byPlace = put.question->kind == AskKind::Options;
    // What is typed for a customer who is not chosen yet stays: it is what the search begins with.
    if (put.question->kind == AskKind::Client && found->code == 0) continue;
    const QString first = put.question->kind == AskKind::Client ? QString::number(found->code)
                          : byPlace                             ? QString::number(found->place)
                                                                : found->text;
    answer(put.boxes.front()->objectName(), first);
    if (put.boxes.size() > 1) answer(put.boxes.back()->objectName(), found->to);
  }
}

void BriefAsks::turn(int page, bool anew) {
  page_ = page;
  const BriefAsk ask = read(page);
  for (const Put& put : puts_) {
    put.panel->setVisible(run_.isAsked(*put.question, ask));
    QWidget* const box = put.boxes.front();
    if (!anew) continue;
    if (put.question->kind == AskKind::Choice) {
      auto* const combo = static_cast<QComboBox*>(box);
      combo->clear();
      combo->addItems(put.question->entries(context_.session, page));
    } else if (put.question->anew) {
      static_cast<QLineEdit*>(box)->clear();
    }
  }
}

QWidget* BriefAsks::box(const QString& name) const {
  for (const Put& put : puts_)
    for (QWidget* const box : put.boxes)
      if (box->objectName() == name) return box;
  return nullptr;
}

QWidget* BriefAsks::firstAsked() const {
  for (QWidget* const box : boxes_)
    if (box->isVisibleTo(&form_)) return box;
  return nullptr;
}

QWidget* BriefAsks::clientWanted() const {
  for (const Put& put : puts_)
    if (put.question->kind == AskKind::Client && read(page_)[put.question->name].code == 0)
      return put.boxes.front();
  return nullptr;
}
