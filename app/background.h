#pragma once
// What the main window's ground shows: a colour and a picture, tiled or in the middle. Kept in the settings.
#include <QString>

struct Session;

struct Background {
  int rgb = 0xF1F1F1;  ///< 0xRRGGBB
  QString picture;     ///< the PC's own path of an existing file; empty: colour alone
  bool tiled = true;
};

/** The settings behind the ground and the changes its context menu offers. */
class BackgroundSettings {
 public:
  explicit BackgroundSettings(Session& session) : session_(session) {}

  Background load() const;
  void setTiled(bool tiled);
  void setPicture(const QString& path);
  void removePicture() { setPicture({}); }
  void useDefaultPicture();
  void setColour(int rgb);
  void useDefaultColour();
  /** Tells, when the picture is tiled, that no colour shows. */
  void warnColourHidden();

  static QString pictureFilter();  ///< as the file box takes it: "Pictures (*.bmp *.jpg *.gif)"

 private:
  QString defaultPicture() const;

  Session& session_;
};
