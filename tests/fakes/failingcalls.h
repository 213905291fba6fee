// SPDX-License-Identifier: MIT
// System calls of which the n-th from now on of one kind fails, or that end the program as
// a crash would (by throwing Crash), so that tests see what is left on the disk.
#pragma once

#include "platform/systemcalls.h"

#include <string>

namespace vantrel::test {

enum class Call { open, write, read, sync, truncate, rename, link, remove };

// Stands for the machine stopping: thrown instead of doing the call, caught by the test only.
struct Crash {};

class FailingCalls : public SystemCalls {
public:
    // The n-th call of this kind from now (1 is the next) fails with `error`, and so do all
    // later ones of the kind when `always`.
    void failAt(Call kind, int n, int error, bool always = false);
    // The n-th call that changes the disk from now (open to create, write, truncate, rename,
    // link, remove) is not done: Crash is thrown, and by every later one too.
    void crashAt(int n);
    void heal();
    // How many calls that change the disk were made since the last heal() or crashAt().
    int changes() const { return m_changes; }

    int open(const std::string& path, int flags, unsigned mode) override;
    long write(int file, const char* bytes, std::size_t count) override;
    long read(int file, char* bytes, std::size_t count) override;
    int sync(int file) override;
    int truncate(int file, long long size) override;
    int rename(const std::string& from, const std::string& to) override;
    int link(const std::string& from, const std::string& to) override;
    int remove(const std::string& path) override;

private:
    bool fails(Call kind);
    void changing();

    bool m_failing = false;
    Call m_kind = Call::open;
    int m_countdown = 0;
    int m_error = 0;
    bool m_always = false;
    int m_crashAt = 0; // 0: never
    int m_changes = 0;
};

} // namespace vantrel::test
