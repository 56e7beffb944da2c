#pragma once
// The company's own row and the billing settings: the rules behind frmUser and frmSecurity.
#include <QString>

#include <optional>

#include "store/session.h"

/** Page one, as typed. */
struct CompanyData {
  QString Company, User, BusCode, PostCode, Address, BusStyle, BusKind, Tel, Fax;
  QString Ocr;  ///< seven-digit approval number printed on the giro

  bool operator==(const CompanyData&) const = default;
};

/** Page two, numbers as typed. */
struct BillingSettings {
  int PayState = 1;                             ///< 1 down, 2 up, 3 half up, to ten won
  QString Rate, AptRate, ManyRate;              ///< delay charge, percent
  QString Security, AptSecurity, ManySecurity;  ///< safety fee, won; fractions are lost
  bool oneMonthOnly = false;                    ///< delay charge on the one month, else cumulative
  bool withoutDelay = false;                    ///< arrears carried without this month's delay charge
  QString Post1 = "000", Post2 = "999";
  bool Stock = false;
  QString password, passwordAgain;  ///< empty deletes the password

  bool operator==(const BillingSettings&) const = default;
};

enum class ProfileSaved { Yes, CompanyMissing, UserMissing };

class CompanyProfile {
 public:
  explicit CompanyProfile(Session& session) : session_(session) {}

  /** A row in User. A failed query is told and answered with False. */
  bool exists() const;
  /** Company, or "라온웨어" when there is no row. */
  QString companyName() const;
  CompanyData profile() const;
  BillingSettings settings() const;

  /** Says what is missing, else updates or inserts the row and tells so. Throws jet::Error. */
  ProfileSaved saveProfile(const CompanyData& data);
  /** False when the two passwords differ. The session's copies follow. Throws jet::Error. */
  bool saveSettings(const BillingSettings& settings);
  /** Tells that the profile comes first; False then. */
  bool maySeeSettings();

  /** Compares with the stored password exactly; a mismatch is told. */
  bool checkPassword(const QString& typed);

 private:
  std::optional<jet::Recordset> row() const;
  Session& session_;
};
