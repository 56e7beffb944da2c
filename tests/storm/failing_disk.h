#pragma once
// A disk that fails on demand. tests/storm/failing_disk.cpp is loaded in front of the C library (LD_PRELOAD) and stands
// between a program and its system calls on the files below one folder; what a program that was started so asks of it is
// declared here.
#include <dlfcn.h>

namespace storm {

enum class DiskFault { Io, Full, Denied, Short };  ///< EIO, ENOSPC, EACCES, fewer bytes than asked

/** The functions of the loaded library; in a program started without it there are none. */
struct FailingDisk {
  /** Counts from now on the calls below root that a fault of this kind can meet, and lets call `at` fail (from 1; 0:
   *  none), or, lasting, every one from there on. */
  void (*arm)(const char* root, int fault, long at, int lasting);
  /** No fault any more; the calls counted since arm. */
  long (*rest)();

  static FailingDisk loaded() {
    return {reinterpret_cast<void (*)(const char*, int, long, int)>(dlsym(RTLD_DEFAULT, "failing_disk_arm")),
            reinterpret_cast<long (*)()>(dlsym(RTLD_DEFAULT, "failing_disk_rest"))};
  }
};

}  // namespace storm
