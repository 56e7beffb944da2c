#pragma once
// "거래처 리스트": finds a customer for a document.
#include "master/registers/pickers.h"
#include "store/session.h"

class QWidget;

/** A text that finds one customer chooses him without the dialog; one that finds none says so and shows nothing. */
TraderFound FrmTraderList(Session& session, Pickers& pickers, const QString& text, QWidget* parent);
