// SPDX-License-Identifier: MIT
#include "platform/systemcalls.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrel {

namespace {

// In the order of OpenFor.
constexpr int flagsFor[] = {O_RDONLY,
                            O_RDWR | O_CREAT | O_APPEND,
                            O_WRONLY | O_CREAT | O_EXCL,
                            O_WRONLY | O_TMPFILE,
                            O_RDWR | O_CREAT,
                            O_RDONLY | O_DIRECTORY};

} // namespace

int SystemCalls::open(const std::string& path, OpenFor purpose, unsigned mode) {
    return ::open(path.c_str(), flagsFor[static_cast<int>(purpose)] | O_CLOEXEC, mode);
}

long SystemCalls::write(int file, const char* bytes, std::size_t count) {
    return ::write(file, bytes, count);
}

long SystemCalls::read(int file, char* bytes, std::size_t count) {
    return ::read(file, bytes, count);
}

int SystemCalls::sync(int file) {
    return ::fsync(file);
}

int SystemCalls::truncate(int file, long long size) {
    return ::ftruncate(file, size);
}

int SystemCalls::close(int file) {
    return ::close(file);
}

int SystemCalls::rename(const std::string& from, const std::string& to) {
    return ::rename(from.c_str(), to.c_str());
}

int SystemCalls::link(const std::string& from, const std::string& to) {
    return ::link(from.c_str(), to.c_str());
}

int SystemCalls::remove(const std::string& path) {
    return ::unlink(path.c_str());
}

int SystemCalls::name(int file, const std::string& path) {
    const std::string opened = "/proc/self/fd/" + std::to_string(file);
    return ::linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
}

int SystemCalls::lock(int file) {
    return ::flock(file, LOCK_EX | LOCK_NB);
}

} // namespace vantrel
