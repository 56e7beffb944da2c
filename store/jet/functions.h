#pragma once
// What written statements call: the collation JET and the functions jet_... listed in compile.h.

namespace jet {

class Connection;

/** Registers all of them on a connection. */
void registerFunctions(Connection& connection);

}  // namespace jet
