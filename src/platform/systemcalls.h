// SPDX-License-Identifier: MIT
// The system's file calls that writing needs, one virtual function each, so that a test can
// make any of them fail. They return what the system returns; errno tells why, on Windows too.
#pragma once

#include <cstddef>
#include <string>

namespace vantrel {

// What a file is opened for.
enum class OpenFor {
    reading,
    appending, // and reading; created when missing
    creating,  // to be written; must not be there
    unnamed,   // the same without a name, in the folder of that path; not every machine can
    locking,   // created when missing
    folder,    // to be synced
};

class SystemCalls {
public:
    virtual ~SystemCalls() = default;
    // mode: permissions of a file that is created.
    virtual int open(const std::string& path, OpenFor purpose, unsigned mode);
    virtual long write(int file, const char* bytes, std::size_t count);
    virtual long read(int file, char* bytes, std::size_t count);
    virtual int sync(int file);
    virtual int truncate(int file, long long size);
    virtual int close(int file);
    virtual int rename(const std::string& from, const std::string& to);
    virtual int link(const std::string& from, const std::string& to);
    virtual int remove(const std::string& path);
    // Gives a file that was opened without a name its first one.
    virtual int name(int file, const std::string& path);
    // One opened for locking: for this program alone, without waiting for it.
    virtual int lock(int file);
};

} // namespace vantrel
