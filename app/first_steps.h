#pragma once
// What a new shop needs before its first delivery, and how far the books have come.
#include <QList>
#include <QString>

struct Session;

struct FirstStep {
  QString title, purpose;
  QString form;   ///< the form that does it; '' for the postcode file, which is fetched
  int count = 0;  ///< how many the books hold
  bool done() const { return count > 0; }
};

class FirstSteps {
 public:
  explicit FirstSteps(Session& session) : session_(session) {}

  /** Profile, gas item, member of staff, customer, postcode file, in this order. What cannot be counted counts 0. */
  QList<FirstStep> steps() const;
  /** Nothing at all was entered yet: the road comes up by itself. */
  bool booksAreEmpty() const;
  /** Puts a postcode file of this program's kind into the data folder; the one that lies there stays until the new one is
   *  whole. What went wrong, '' on success. file: the PC's own path. */
  QString takePostCodes(const QString& file);

 private:
  Session& session_;
};
