#pragma once
// Korean whatever the PC's language is: the boxes of the toolkit (file, colour) speak as the program does.
class QApplication;

/** Once, right after the application is made. */
void speakKorean(QApplication& application);
