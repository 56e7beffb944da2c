#pragma once
// The head of the two document windows: what is still to be issued and what was, over the rows that ask.
#include <initializer_list>

class QTabBar;
class QVBoxLayout;
class QWidget;

/** The two sections; the keys turn them, so it takes no focus. */
QTabBar* sectionTabs(QWidget* parent);
/** The sections and the rows below them, close together. */
QVBoxLayout* sectionHead(std::initializer_list<QWidget*> rows);
