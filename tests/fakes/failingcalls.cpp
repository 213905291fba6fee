// SPDX-License-Identifier: MIT
#include "fakes/failingcalls.h"

#include <cerrno>
#include <fcntl.h>

namespace vantrel::test {

void FailingCalls::failAt(Call kind, int n, int error, bool always) {
    m_failing = true;
    m_kind = kind;
    m_countdown = n;
    m_error = error;
    m_always = always;
}

void FailingCalls::crashAt(int n) {
    m_crashAt = n;
    m_changes = 0;
}

void FailingCalls::heal() {
    m_failing = false;
    m_crashAt = 0;
    m_changes = 0;
}

bool FailingCalls::fails(Call kind) {
    if (!m_failing || kind != m_kind)
        return false;
    --m_countdown;
    const bool fail = m_countdown == 0 || (m_always && m_countdown < 0);
    if (fail)
        errno = m_error;
    return fail;
}

void FailingCalls::changing() {
    ++m_changes;
    if (m_crashAt != 0 && m_changes >= m_crashAt)
        throw Crash();
}

int FailingCalls::open(const std::string& path, int flags, unsigned mode) {
    if ((flags & O_CREAT) != 0)
        changing();
    return fails(Call::open) ? -1 : SystemCalls::open(path, flags, mode);
}

long FailingCalls::write(int file, const char* bytes, std::size_t count) {
    changing();
    if (!fails(Call::write))
        return SystemCalls::write(file, bytes, count);
    const int error = errno;
    // A full disk takes what still fits before it refuses.
    SystemCalls::write(file, bytes, count / 2);
    errno = error;
    return -1;
}

long FailingCalls::read(int file, char* bytes, std::size_t count) {
    return fails(Call::read) ? -1 : SystemCalls::read(file, bytes, count);
}

int FailingCalls::sync(int) {
    // Nothing here outlives the test: no need to wait for the disk.
    return fails(Call::sync) ? -1 : 0;
}

int FailingCalls::truncate(int file, long long size) {
    changing();
    return fails(Call::truncate) ? -1 : SystemCalls::truncate(file, size);
}

int FailingCalls::rename(const std::string& from, const std::string& to) {
    changing();
    return fails(Call::rename) ? -1 : SystemCalls::rename(from, to);
}

int FailingCalls::link(const std::string& from, const std::string& to) {
    changing();
    return fails(Call::link) ? -1 : SystemCalls::link(from, to);
}

int FailingCalls::remove(const std::string& path) {
    changing();
    return fails(Call::remove) ? -1 : SystemCalls::remove(path);
}

} // namespace vantrel::test
