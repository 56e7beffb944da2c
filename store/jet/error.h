#pragma once
// What a failed statement tells: the engine's number and a Korean text.
#include <QString>

#include <exception>

namespace jet {

/** Thrown by statements and opens; event handlers catch it (ui/forms/guard), data helpers turn it into False. */
class Error : public std::exception {
 public:
  Error(int number, QString description) : number_(number), description_(std::move(description)) {}
  /** 91 handle not set, 3011, 3022 duplicate key, 3024 no file, 3061 unknown name, 3075 syntax, 3078 no table,
   *  3151 or 3044 bad path, 3261 locked table, 3343 no data file, 3421 conversion, ... */
  int number() const { return number_; }
  const QString& description() const { return description_; }
  /** What was run, and the path of the handle it was run on; '' where there was none. For the support log. */
  const QString& statement() const { return statement_; }
  const QString& path() const { return path_; }
  void setOrigin(const QString& statement, const QString& path) {
    statement_ = statement;
    path_ = path;
  }
  const char* what() const noexcept override { return "jet::Error"; }

 private:
  int number_;
  QString description_;
  QString statement_, path_;
};

}  // namespace jet
