#pragma once
// The report forms of the trade side: one description each. A further report is a further description, a layout in
// reports/, a line in app/form_table.
#include "briefs/brief.h"

Brief trustBrief();     ///< frmTrustBrief: gas credit by customer
Brief holdBrief();      ///< frmHoldBrief: gas and cylinders in and out
Brief utilHoldBrief();  ///< frmUtilHoldBrief: fittings in and out
