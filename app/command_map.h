#pragma once
// The whole menu of the main window as one table: what stands where, what it opens, what must happen before.
#include <QString>

#include <optional>
#include <span>

#include "store/house_style.h"

/** What choosing an entry does. */
enum class CommandKind {
  Menu,    ///< opens a menu
  Form,    ///< opens the form named
  Dialog,  ///< opens the form named and waits for it
  InitStock,
  CloseYear,
  Recarry,
  YearError,
  Exit,
  SeeIdEnabled,
  SeeIdTest,
  Guide,
  Home,
  RemoteSupport,
  BackUp,         ///< to the local disk
  BackUpSupport,  ///< for support
  BringBack,      ///< a backup put back
  CashBook,
  Schedule,
  MoveIn,  ///< books of the older format
};

struct CommandEntry {
  enum Flag : unsigned {
    Relink = 1,      ///< the year files are linked anew first, so that a moved Basic.mdb is followed
    NeedsStock = 2,  ///< on only while the company manages its stock
    Ruled = 4,       ///< a line above the entry
    /** All open forms are closed first: they show another year or an old copy of its book, or the program ends behind
     *  the entry, and what is typed in them would be lost unasked. */
    FormsAway = 8,
  };

  const char16_t* menu;     ///< name of the menu it stands in; empty: the menu bar
  const char16_t* name;     ///< object name
  const char16_t* caption;  ///< with its Alt letter
  CommandKind kind = CommandKind::Form;
  const char16_t* form = u"";  ///< form name, with the page or side it opens on behind a colon
  unsigned flags = 0;
  std::optional<HouseStyle> book = {};  ///< the meter book it opens on

  QString menuName() const { return QString::fromUtf16(menu); }
  QString objectName() const { return QString::fromUtf16(name); }
  QString text() const { return QString::fromUtf16(caption); }
  QString plainCaption() const { return text().section("(&", 0, 0); }  ///< without its Alt letter
  QString formName() const { return QString::fromUtf16(form); }
  QString kindOfBook() const { return book ? pageOfBook(*book) : QString(); }  ///< "1" to "3"; ''
};

struct ToolButton {
  const char16_t* caption;
  const char16_t* command;  ///< the entry it stands for
};

/** Menus before their entries, in the order on the screen. */
std::span<const CommandEntry> commandMap();
/** Null when there is none. */
const CommandEntry* findCommand(const QString& name);
/** The tool bar's eleven buttons, from the left. */
std::span<const ToolButton> toolButtons();
