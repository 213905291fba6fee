// SPDX-License-Identifier: MIT
// The system's file calls that writing needs, one virtual function each, so that a test can
// make any of them fail. They return what the system returns; errno tells why.
#pragma once

#include <cstddef>
#include <string>

namespace vantrel {

class SystemCalls {
public:
    virtual ~SystemCalls() = default;
    virtual int open(const std::string& path, int flags, unsigned mode);
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
    // For this program alone, without waiting for it.
    virtual int lock(int file);
};

} // namespace vantrel
