#pragma once
// The report forms of the trade side: one description each. A further report is a further description, a layout in
// reports/, a line in app/form_table.
#include "briefs/brief.h"

Brief lpgSaleBrief();     ///< frmLPGSaleBrief: gas sales by month, day, customer
Brief resSaleBrief();     ///< frmResSaleBrief: gas by delivery person
Brief resUtilBrief();     ///< frmResUtilBrief: materials by delivery person
Brief trustBrief();       ///< frmTrustBrief: gas credit by customer
Brief utilTrustBrief();   ///< frmUtilTrustBrief: material credit by customer
Brief canLpgBrief();      ///< frmCANLPGBrief: loaned cylinders by item
Brief canCompanyBrief();  ///< frmCANCompanyBrief: cylinders left at stations and at customers
Brief canResBrief();      ///< frmCANResBrief: loaned cylinders by delivery person
Brief utilClientBrief();  ///< frmUtilClientBrief: materials by customer
Brief saleBrief();        ///< frmSaleBrief: all sales of a period
Brief clientSaleBrief();  ///< frmAClientSaleBrief: the lines of one customer
Brief saleLedgerBrief();  ///< frmPrtSale: the sale ledger over the live tables
Brief buyLedgerBrief();   ///< frmPrtBuy: the purchase ledger over the live tables
Brief holdBrief();        ///< frmHoldBrief: gas and cylinders in and out
Brief utilHoldBrief();    ///< frmUtilHoldBrief: fittings in and out
