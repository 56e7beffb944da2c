#pragma once
// Which device a serial port's name stands for on this PC.
#include "pc/paths.h"

namespace pc {

/** "COM3" as this PC's device: the environment's HAEON_COM3, else the line COM3= in ports.ini at the PC's root, else
 *  the system's own third port. On Windows the name itself. */
QString serialDevice(const Paths& paths, const QString& port);

}  // namespace pc
