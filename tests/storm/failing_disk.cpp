// See failing_disk.h. Every call of the C library that touches a file by path or descriptor is replaced by one that
// counts it, fails when its turn has come, and otherwise hands it on.
#include "tests/storm/failing_disk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using storm::DiskFault;

struct State {
  std::string root;
  DiskFault fault = DiskFault::Io;
  long at = 0, count = 0;
  bool lasting = false, armed = false;
  bool tells = false;  ///< FAILING_DISK_TELLS: which call failed, on the error channel
};
State state;
bool ours[4096];  // by descriptor: a file below the root

enum Kind { Look = 1, Name = 2, Read = 4, Write = 8, Lock = 16, Flush = 32 };

bool canMeet(DiskFault fault, int kind) {
  switch (fault) {
    case DiskFault::Io:
      return true;
    case DiskFault::Full:
      return kind & (Write | Flush);
    case DiskFault::Denied:
      return kind & (Look | Name);
    default:
      return kind & (Read | Write) && !(kind & Name);
  }
}

/** True: this call fails; errno is set. */
bool meets(int kind, const char* call, const char* path = "") {
  if (!state.armed || !canMeet(state.fault, kind)) return false;
  ++state.count;
  if (state.at == 0 || (state.lasting ? state.count < state.at : state.count != state.at)) return false;
  if (state.tells) dprintf(STDERR_FILENO, "%ld: %s %s\n", state.count, call, path);
  errno = state.fault == DiskFault::Full ? ENOSPC : state.fault == DiskFault::Denied ? EACCES : EIO;
  return true;
}

bool below(const char* path) {
  return state.armed && path && std::strncmp(path, state.root.c_str(), state.root.size()) == 0;
}
bool below(int descriptor) {
  return state.armed && descriptor >= 0 && size_t(descriptor) < std::size(ours) && ours[descriptor];
}
bool isShort() {
  return state.fault == DiskFault::Short;
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int opened(int descriptor, const char* path) {
  if (descriptor >= 0 && size_t(descriptor) < std::size(ours))
    ours[descriptor] =
        path && !state.root.empty() && std::strncmp(path, state.root.c_str(), state.root.size()) == 0;
  return descriptor;
}

int openKind(int flags) {
  return Name | (flags & O_CREAT ? Write : 0);
}

/** A read that fails with fewer bytes finds none, as behind a file's end. */
ssize_t shortRead() {
  return isShort() ? 0 : -1;
}

}  // namespace

#define NEXT(name) static const auto real = next<decltype(&name)>(#name)

extern "C" {

__attribute__((visibility("default"))) void failing_disk_arm(const char* root, int fault, long at,
                                                             int lasting) {
  state = {root, DiskFault(fault), at, 0, lasting != 0, true, std::getenv("FAILING_DISK_TELLS") != nullptr};
}
__attribute__((visibility("default"))) long failing_disk_rest() {
  state.armed = false;
  return state.count;
}

#define OPEN(name, parameters, arguments)                                 \
  int name parameters {                                                   \
    NEXT(name);                                                           \
    va_list rest;                                                         \
    va_start(rest, flags);                                                \
    const mode_t mode = va_arg(rest, mode_t);                             \
    va_end(rest);                                                         \
    if (below(path) && meets(openKind(flags), __func__, path)) return -1; \
    return opened(real arguments, path);                                  \
  }
OPEN(open, (const char* path, int flags, ...), (path, flags, mode))
OPEN(open64, (const char* path, int flags, ...), (path, flags, mode))
OPEN(openat, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
OPEN(openat64, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))

int close(int file) {
  NEXT(close);
  if (file >= 0 && size_t(file) < std::size(ours)) ours[file] = false;
  return real(file);
}

ssize_t read(int file, void* bytes, size_t count) {
  NEXT(read);
  return below(file) && meets(Read, __func__) ? shortRead() : real(file, bytes, count);
}
#define PREAD(name)                                                                           \
  ssize_t name(int file, void* bytes, size_t count, off_t at) {                               \
    NEXT(name);                                                                               \
    return below(file) && meets(Read, __func__) ? shortRead() : real(file, bytes, count, at); \
  }
PREAD(pread)
PREAD(pread64)

ssize_t write(int file, const void* bytes, size_t count) {
  NEXT(write);
  if (!below(file) || !meets(Write, __func__)) return real(file, bytes, count);
  return isShort() ? real(file, bytes, (count + 1) / 2) : -1;
}
#define PWRITE(name)                                                                  \
  ssize_t name(int file, const void* bytes, size_t count, off_t at) {                 \
    NEXT(name);                                                                       \
    if (!below(file) || !meets(Write, __func__)) return real(file, bytes, count, at); \
    return isShort() ? real(file, bytes, (count + 1) / 2, at) : -1;                   \
  }
PWRITE(pwrite)
PWRITE(pwrite64)

ssize_t sendfile64(int to, int from, off_t* at, size_t count) noexcept {
  NEXT(sendfile64);
  if ((!below(to) && !below(from)) || !meets(Write, __func__)) return real(to, from, at, count);
  return isShort() ? 0 : -1;
}

#define ON_FILE(name, kind, parameters, arguments)                     \
  int name parameters {                                                \
    NEXT(name);                                                        \
    return below(file) && meets(kind, __func__) ? -1 : real arguments; \
  }
ON_FILE(fsync, Flush, (int file), (file))
ON_FILE(fdatasync, Flush, (int file), (file))
ON_FILE(ftruncate, Write | Name, (int file, off_t size) noexcept, (file, size))
ON_FILE(ftruncate64, Write | Name, (int file, off_t size) noexcept, (file, size))
ON_FILE(fstat, Look, (int file, struct stat* found) noexcept, (file, found))
ON_FILE(fstat64, Look, (int file, struct stat64* found) noexcept, (file, found))

#define ON_PATH(name, kind, parameters, arguments)                           \
  int name parameters {                                                      \
    NEXT(name);                                                              \
    return below(path) && meets(kind, __func__, path) ? -1 : real arguments; \
  }
ON_PATH(unlink, Name, (const char* path) noexcept, (path))
ON_PATH(rmdir, Name, (const char* path) noexcept, (path))
ON_PATH(access, Look, (const char* path, int how) noexcept, (path, how))
ON_PATH(stat, Look, (const char* path, struct stat* found) noexcept, (path, found))
ON_PATH(stat64, Look, (const char* path, struct stat64* found) noexcept, (path, found))
ON_PATH(lstat, Look, (const char* path, struct stat* found) noexcept, (path, found))
ON_PATH(lstat64, Look, (const char* path, struct stat64* found) noexcept, (path, found))
ON_PATH(mkdir, Name | Write, (const char* path, mode_t mode) noexcept, (path, mode))
ON_PATH(rename, Name | Write, (const char* path, const char* to) noexcept, (path, to))
ON_PATH(link, Name | Write, (const char* path, const char* to) noexcept, (path, to))
ON_PATH(renameat2, Name | Write,
        (int folder, const char* path, int toFolder, const char* to, unsigned how) noexcept,
        (folder, path, toFolder, to, how))
ON_PATH(statx, Look, (int folder, const char* path, int how, unsigned what, struct statx* found) noexcept,
        (folder, path, how, what, found))

DIR* opendir(const char* path) {
  NEXT(opendir);
  return below(path) && meets(Name, __func__, path) ? nullptr : real(path);
}

#define FCNTL(name)                                                                                \
  int name(int file, int command, ...) {                                                           \
    NEXT(name);                                                                                    \
    va_list rest;                                                                                  \
    va_start(rest, command);                                                                       \
    void* const argument = va_arg(rest, void*);                                                    \
    va_end(rest);                                                                                  \
    const bool locks =                                                                             \
        command == F_SETLK || command == F_SETLKW || command == F_GETLK || command == F_OFD_SETLK; \
    return locks && below(file) && meets(Lock, __func__) ? -1 : real(file, command, argument);     \
  }
FCNTL(fcntl)
FCNTL(fcntl64)

}  // extern "C"
