#pragma once
// A report form as data: what is asked, the statements, the columns with what is staged where, how rows fold and sum,
// messages, report and formula values. briefs/brief_run works on it without a widget, briefs/form_brief shows any.
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

#include "pc/settings.h"
#include "ui/model/spread_model.h"

struct Session;
namespace jet {
class Database;
class Recordset;
}  // namespace jet

/** How a question is put. */
enum class AskKind {
  Year,            ///< one of the years that have a file: "2026"
  Month,           ///< "03"
  Period,          ///< two days, checked: "2026-03-01" and "2026-03-31"
  MonthPeriod,     ///< two months: "03" and "05"
  MonthDayPeriod,  ///< two days as typed: "03-01" and "03-31"; the page's rule checks them
  Text,            ///< part of a name
  Options,         ///< a group of which one is on
  Choice,          ///< one entry of a list
  Check,           ///< "1" or ""; remembered
  Person,          ///< a delivery person, by search; '' for all
  Station,         ///< a refill station, by search; '' for all
  Client,          ///< a customer, by search: shown name and code
};

struct BriefQuestion {
  AskKind kind = AskKind::Text;
  QString name = {};  ///< of the box, by which the answer is read; a period's two boxes add "From" and "To"
  QString label = {};
  QString help = {};
  /** Options and choices; the answer's place counts from 0. */
  std::function<QStringList(const Session&, int page)> entries = {};
  std::vector<int> pages = {};  ///< that ask it; empty: all
  QString when = {};  ///< the name of a check: asked while it is on; with "!" before it, while it is off
  const pc::Setting* remembered = nullptr;  ///< of a check: an entry of store/settings_table
  bool anew = false;                        ///< starts empty on every page
  bool fromNewYear = false;                 ///< a period that begins with the year instead of the month
};

struct BriefAnswer {
  QString text = {};
  QString to = {};  ///< a period's end
  int place = 0;    ///< of an option or a choice
  qint64 code = 0;  ///< of a customer
};

/** The answers of one page. */
struct BriefAsk {
  int page = 0;
  QHash<QString, BriefAnswer> answers = {};
  /** While a page that reaches every year is read: the days whose lines the file at hand is read for. */
  QString fileFrom = {}, fileTo = {};

  const BriefAnswer& operator[](const QString& name) const;
  const QString& text(const QString& name) const { return (*this)[name].text; }
  const QString& from(const QString& name) const { return (*this)[name].text; }
  const QString& to(const QString& name) const { return (*this)[name].to; }
  int place(const QString& name) const { return (*this)[name].place; }
  bool on(const QString& name) const { return (*this)[name].text == QLatin1String("1"); }
};

enum class BriefLook { Text, Centre, Money, Pieces, Number };

struct BriefColumn {
  QString header = {};
  QString field = {};  ///< of the statement's rows
  double width = 12;
  BriefLook look = BriefLook::Text;
  QString staged = {};  ///< "Str01", "Lng01", "Dbl01"; '' is not staged
  bool sum = false;
  /** Rows that agree in all keys become one, their figures added up. Without a key every row stands for itself. */
  bool key = false;
  QString missing = {};                                     ///< staged in place of an empty text
  std::function<QString(const jet::Recordset&)> cell = {};  ///< in place of the field
  QString group = {};                                       ///< a caption above neighbouring columns
  bool hidden = false;
};

using BriefCells = std::vector<QString>;

/** What a page shows: rows of as many cells as there are columns; figures as plain numbers. */
struct BriefRows {
  bool read = true;  ///< false: it failed and that was told
  std::vector<BriefCells> rows = {};
  QStringList figures = {};  ///< of the page's panels, in their order
  QString note = {};         ///< for the help line: what the operator should know of these rows
};

/** Told how far long work is. */
using BriefTeller = std::function<void(int done, int total)>;

/** Which year files a page's statement runs over, in the order of their years. A closing copies the old year's lines into
 *  the new file: each file gives the lines of its own year alone (store/year_file.h, LineDays). */
enum class BriefReach {
  OpenYear,
  Asked,  ///< the years of the question named in the page's period, which is narrowed to each file's days
  UpTo,  ///< every year up to the period's end, as what was lent stays lent; the statement uses fileFrom, fileTo
};

/** Some rows as a picture: bars for comparing, a line for a course of time. */
struct BriefChart {
  enum class Kind { None, Bars, Line };
  Kind kind = Kind::None;
  QString title = {};
  int label = 0;                 ///< column, from 1
  std::vector<int> series = {};  ///< columns, from 1
  bool byLabel = false;          ///< rows of one label are one
  int most = 0;   ///< only so many rows, the largest of the first series; 0 for all in their order
  int apart = 0;  ///< column that parts rows of one label, from 1, as customers share names; 0 for none
};

struct BriefPanel {
  QString name = {}, caption = {};
  double width = 14;  ///< in half-width characters
  bool money = true;
};

struct BriefPage {
  QString key = {};  ///< by which the page is opened: "month" in "frmLPGSaleBrief:month"
  QString tab = {};  ///< '' for a form of one page
  QString grid = {};
  std::vector<BriefColumn> columns = {};
  int fill = 1;  ///< the column that takes the spare width

  // Where the rows come from: a statement, or a rule that computes first and hands them over.
  std::function<QString(const BriefAsk& ask)> statement = {};
  QString period = {};  ///< the question that tells which years are read; a Year or a Period
  BriefReach reach = BriefReach::OpenYear;
  /** Runs on each file before it is read. */
  std::function<void(const jet::Database&)> repair = {};
  QStringList slots_ = {};      ///< rows that stand from the start, by the first key's text
  std::vector<int> order = {};  ///< columns (from 1) that order what several files gave
  /** Adds to the rows that were read, or gives them all where there is no statement. */
  std::function<void(Session&, const BriefAsk&, const BriefTeller&, BriefRows&)> complete = {};
  /** What the bar of long work says; '' shows none. */
  std::function<QString(const BriefAsk&)> working = {};

  std::function<QString(const BriefAsk&)> emptyText = {};
  QString emptyTitle = {};

  // The paper: a report file, or without one the grid as it stands.
  QString report = {};
  std::function<QStringList(const BriefAsk&, const BriefRows&)> formulas = {};
  bool blankRow = true;  ///< an empty grid is one blank row, which keeps the report from failing
  std::function<QString(const BriefAsk&)> printTitle = {};  ///< of the grid on paper
  /** A page without a grid: its report reads the live tables by this selection formula. */
  std::function<QString(const Session&, const BriefAsk&)> selection = {};

  std::vector<BriefPanel> panels = {};
  BriefChart chart = {};
  /** The form, page and answers that show the lines behind a row, by briefAddress; '' for none. */
  std::function<QString(const BriefAsk&, const BriefCells&)> behind = {};
};

struct Brief {
  QString form = {}, caption = {};
  QString tabs = {};  ///< the tab bar's name
  QString searchButton = "BtnRefresh", excelButton = "BtnExcel";
  QString sheet = {};  ///< name of the spreadsheet; '' for the form's caption
  std::vector<BriefQuestion> questions = {};
  std::vector<BriefPage> pages = {};
  bool printButton = true;                              ///< False: by F10 alone
  std::function<QString(const Session&)> opensOn = {};  ///< the key of the page that is shown first
};

/** "frmAClientSaleBrief:lines?TxtClient=12&TxtDayFrom=2026-01-01": a page with its answers. */
struct BriefAddress {
  QString page = {};
  QList<std::pair<QString, QString>> answers = {};
};
QString briefAddress(const QString& form, const QString& page,
                     const QList<std::pair<QString, QString>>& answers);
/** Of what stands behind the form's colon. */
BriefAddress readBriefAddress(const QString& page);

/** One condition a question, joined as the statements need it: "Sale.SaleDate >= '...' And Sale.SaleDate <= '...'". */
QString briefDays(const QString& field, const BriefAsk& ask, const QString& period);
