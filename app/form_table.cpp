#include "app/form_table.h"

#include <iterator>

#include "app/FrmFirstSteps.h"
#include "app/FrmNetDrive.h"
#include "app/FrmPath.h"
#include "app/frmAbout.h"
#include "app/frmChangeYear.h"
#include "app/frmUser.h"
#include "billing/FrmSukum.h"
#include "billing/apt_baln.h"
#include "billing/eva_total.h"
#include "billing/frmEva.h"
#include "briefs/form_brief.h"
#include "documents/invoices/FrmNewAcount.h"
#include "documents/invoices/FrmTax.h"
#include "documents/statements/FrmDealList.h"
#include "giro/frmPrtChange.h"
#include "giro/frmPrtJiro.h"
#include "giro/frmPrtJiroOCR.h"
#include "giro/frmPrtJiroOrgA4.h"
#include "links/FrmSMS.h"
#include "links/FrmSeeIDFormatTelNo.h"
#include "links/form_short_list.h"
#include "links/frmCar.h"
#include "links/frmDm.h"
#include "links/frmPrtSafe.h"
#include "master/buildings/frmHouseStyle.h"
#include "master/catalogue/frmGasUtil.h"
#include "master/catalogue/frmVolume.h"
#include "master/customers/FrmPreView.h"
#include "master/customers/frmClient.h"
#include "master/partners/frmBank.h"
#include "master/partners/frmRefillState.h"
#include "master/partners/frmResponse.h"
#include "papers/FrmMargin.h"
#include "papers/FrmPrintSection.h"
#include "papers/FrmSetPrinter.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/frmBuy.h"
#include "trade/frmResCAN.h"
#include "trade/frmSale.h"
#include "trade/frmTodaySale.h"
#include "trade/frmVolumeEstimate.h"

namespace {

// A form that has pages says so by its own showPage(const QString&).
template <class F>
FormEntry formEntry(const char16_t* name) {
  FormEntry entry{
      name, [](FormContext& context, QWidget* parent) -> QWidget* { return new F(context, parent); }, {}};
  if constexpr (requires(F & form, const QString& page) { form.showPage(page); })
    entry.showPage = [](QWidget* form, const QString& page) { static_cast<F*>(form)->showPage(page); };
  return entry;
}

/** A report form is its description. */
FormEntry briefEntry(const char16_t* name, Brief (*brief)()) {
  return {name,
          [brief](FormContext& context, QWidget* parent) { return new BriefForm(context, brief(), parent); },
          [](QWidget* form, const QString& page) { static_cast<BriefForm*>(form)->showPage(page); }};
}

// One line a form, by name.
// clang-format off
const FormEntry formTable[] = {
    formEntry<frmAbout>(u"frmAbout"),
    formEntry<frmBank>(u"frmBank"),
    formEntry<frmChangeYear>(u"frmChangeYear"),
    formEntry<frmCar>(u"frmCar"),
    formEntry<frmCaRepairUnit>(u"frmCaRepairUnit"),
    formEntry<frmCarRes>(u"frmCarRes"),
    formEntry<frmDm>(u"frmDm"),
    formEntry<FrmDealList>(u"FrmDealList"),
    formEntry<FrmFirstSteps>(u"FrmFirstSteps"),
    formEntry<FrmMargin>(u"FrmMargin"),
    formEntry<FrmNewAcount>(u"FrmNewAcount"),
    formEntry<FrmNetDrive>(u"FrmNetDrive"),
    formEntry<FrmPath>(u"FrmPath"),
    formEntry<FrmPrintSection>(u"FrmPrintSection"),
    formEntry<FrmPreView>(u"FrmPreView"),
    formEntry<FrmSetPrinter>(u"FrmSetPrinter"),
    formEntry<frmBuy>(u"frmBuy"),
    formEntry<FrmTax>(u"FrmTax"),
    formEntry<frmClient>(u"frmClient"),
    formEntry<frmEva>(u"frmEva"),
    briefEntry(u"FrmAptBaln_rpt", aptBalnBrief),
    briefEntry(u"frmEvaTotal", evaTotalBrief),
    formEntry<frmGasUtil>(u"frmGasUtil"),
    formEntry<frmHouseStyle>(u"frmHouseStyle"),
    formEntry<frmPrtChange>(u"frmPrtChange"),
    formEntry<frmPrtJiro>(u"frmPrtJiro"),
    formEntry<frmPrtJiroOCR>(u"frmPrtJiroOCR"),
    formEntry<frmPrtJiroOrg>(u"frmPrtJiroOrg"),
    formEntry<frmPrtJiroOrgA4>(u"frmPrtJiroOrgA4"),
    formEntry<frmPrtMicr>(u"frmPrtMicr"),
    formEntry<frmPrtSafe>(u"frmPrtSafe"),
    formEntry<frmRefillState>(u"frmRefillState"),
    formEntry<frmResCAN>(u"frmResCAN"),
    formEntry<frmResponse>(u"frmResponse"),
    formEntry<frmSale>(u"frmSale"),
    formEntry<FrmSMS>(u"FrmSMS"),
    formEntry<FrmSeeIDFormatTelNo>(u"FrmSeeIDFormatTelNo"),
    formEntry<FrmSukum>(u"FrmSukum"),
    formEntry<frmTodaySale>(u"frmTodaySale"),
    briefEntry(u"frmLPGSaleBrief", lpgSaleBrief),
    briefEntry(u"frmResSaleBrief", resSaleBrief),
    briefEntry(u"frmResUtilBrief", resUtilBrief),
    briefEntry(u"frmTrustBrief", trustBrief),
    briefEntry(u"frmUtilTrustBrief", utilTrustBrief),
    briefEntry(u"frmCANLPGBrief", canLpgBrief),
    briefEntry(u"frmCANCompanyBrief", canCompanyBrief),
    briefEntry(u"frmCANResBrief", canResBrief),
    briefEntry(u"frmUtilClientBrief", utilClientBrief),
    briefEntry(u"frmSaleBrief", saleBrief),
    briefEntry(u"frmAClientSaleBrief", clientSaleBrief),
    briefEntry(u"frmPrtSale", saleLedgerBrief),
    briefEntry(u"frmPrtBuy", buyLedgerBrief),
    briefEntry(u"frmHoldBrief", holdBrief),
    briefEntry(u"frmUtilHoldBrief", utilHoldBrief),
    formEntry<frmUser>(u"frmUser"),
    formEntry<frmVolume>(u"frmVolume"),
    formEntry<frmVolumeEstimate>(u"frmVolumeEstimate"),
};
// clang-format on

}  // namespace

std::span<const FormEntry> builtForms() {
  return formTable;
}

const FormEntry* findForm(const QString& name) {
  const QString base = name.section(u':', 0, 0);
  for (const auto& entry : formTable)
    if (base == QStringView(entry.name)) return &entry;
  return nullptr;
}
