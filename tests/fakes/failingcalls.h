// SPDX-License-Identifier: MIT
// System calls of which the n-th from now on of one kind fails, or that end the program as
// a crash would (by throwing Crash), so that tests see what is left on the disk.
#pragma once

#include "platform/systemcalls.h"

#include <atomic>
#include <cerrno>
#include <string>

namespace vantrel::test {

enum class Call { open, write, read, sync, truncate, rename, link, remove, lock };

// Stands for the machine stopping: thrown instead of doing the call, caught by the test only.
struct Crash {};

class FailingCalls : public SystemCalls {
public:
    // The n-th call of this kind from now (1 is the next) fails with `error`, and so do all
    // later ones of the kind when `always`; none when n is 0.
    void failAt(Call kind, int n, int error, bool always = false) {
        m_failure = {kind, n, error, always};
    }
    // The n-th call that changes the disk from now (open to create, write, truncate, rename,
    // link, remove) is not done: Crash is thrown, and by every later one too; never when 0.
    void crashAt(int n) { m_untilCrash = n; }
    void heal() { *this = FailingCalls(); }

    int open(const std::string& path, OpenFor purpose, unsigned mode) override {
        const bool creates = purpose == OpenFor::appending || purpose == OpenFor::creating ||
                             purpose == OpenFor::locking;
        const bool fails = creates ? changeFails(Call::open) : callFails(Call::open);
        return fails ? -1 : SystemCalls::open(path, purpose, mode);
    }
    // A full disk takes what still fits before it refuses, and a crash leaves a part as well.
    long write(int file, const char* bytes, std::size_t count) override {
        const long part = SystemCalls::write(file, bytes, count / 2);
        if (part < 0 || changeFails(Call::write))
            return -1;
        const long rest = SystemCalls::write(file, bytes + part, count - static_cast<size_t>(part));
        return rest < 0 ? -1 : part + rest;
    }
    long read(int file, char* bytes, std::size_t count) override {
        return callFails(Call::read) ? -1 : SystemCalls::read(file, bytes, count);
    }
    // Nothing here outlives the test: no need to wait for the disk.
    int sync(int) override { return callFails(Call::sync) ? -1 : 0; }
    int truncate(int file, long long size) override {
        return changeFails(Call::truncate) ? -1 : SystemCalls::truncate(file, size);
    }
    int rename(const std::string& from, const std::string& to) override {
        return changeFails(Call::rename) ? -1 : SystemCalls::rename(from, to);
    }
    int link(const std::string& from, const std::string& to) override {
        return changeFails(Call::link) ? -1 : SystemCalls::link(from, to);
    }
    int name(int file, const std::string& path) override {
        return changeFails(Call::link) ? -1 : SystemCalls::name(file, path);
    }
    int lock(int file) override { return callFails(Call::lock) ? -1 : SystemCalls::lock(file); }
    int remove(const std::string& path) override {
        return changeFails(Call::remove) ? -1 : SystemCalls::remove(path);
    }

private:
    bool changeFails(Call kind) {
        if (m_untilCrash == 1)
            throw Crash();
        m_untilCrash -= m_untilCrash > 0 ? 1 : 0;
        return callFails(kind);
    }
    bool callFails(Call kind) {
        if (kind != m_failure.kind)
            return false;
        const int n = std::atomic_ref(m_failure.countdown)--; // files are synced all at once
        const bool fails = n == 1 || (m_failure.always && n < 1);
        if (fails)
            errno = m_failure.error;
        return fails;
    }

    struct {
        Call kind;
        int countdown;
        int error;
        bool always;
    } m_failure{};
    int m_untilCrash = 0;
};

} // namespace vantrel::test
