// SPDX-License-Identifier: MIT
#include "platform/systemcalls.h"

#include "platform/windows/win32.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>

namespace vantrel {

namespace {

struct OpenCall {
    DWORD access;
    DWORD shared;
    DWORD disposition;
    DWORD flags;
};

// In the order of OpenFor. A file for locking is nobody else's while it is open.
constexpr DWORD readWrite = GENERIC_READ | GENERIC_WRITE;
constexpr OpenCall openCalls[] = {
    {GENERIC_READ, sharedByAll, OPEN_EXISTING, 0},
    {readWrite, sharedByAll, OPEN_ALWAYS, 0},
    {GENERIC_WRITE, sharedByAll, CREATE_NEW, 0},
    {}, // no file is without a name
    {readWrite, 0, OPEN_ALWAYS, 0},
    {GENERIC_READ, sharedByAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS}};

HANDLE handleOf(int file) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(file));
}

int failed(int error) {
    errno = error;
    return -1;
}

int answer(BOOL done) {
    return done != 0 ? 0 : failed(lastErrno());
}

bool isFolder(HANDLE handle) {
    FILE_STANDARD_INFO info = {};
    return ::GetFileInformationByHandleEx(handle, FileStandardInfo, &info, sizeof info) != 0 &&
           info.Directory != 0;
}

// A virus scanner or an indexer holds a file for moments after it was written. Calls again and
// again, for a second at most, while the system gives one of these errors.
template <typename Call>
int patiently(Call call, std::initializer_list<DWORD> held) {
    constexpr int tries = 50;
    constexpr DWORD pause = 20; // milliseconds
    for (int i = 1; i < tries; ++i) {
        if (call() != 0)
            return 0;
        if (std::find(held.begin(), held.end(), ::GetLastError()) == held.end())
            break;
        ::Sleep(pause);
    }
    return answer(call());
}

} // namespace

int SystemCalls::open(const std::string& path, OpenFor purpose, unsigned) {
    if (purpose == OpenFor::unnamed)
        return failed(ENOTSUP);
    const OpenCall& how = openCalls[static_cast<int>(purpose)];
    HANDLE handle = INVALID_HANDLE_VALUE;
    const auto create = [&] {
        handle = ::CreateFileW(wideText(path).c_str(), how.access, how.shared, nullptr,
                               how.disposition, how.flags, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    };
    if (purpose == OpenFor::locking) {
        if (!create())
            return failed(::GetLastError() == ERROR_SHARING_VIOLATION ? EWOULDBLOCK : lastErrno());
    } else if (patiently(create, {ERROR_SHARING_VIOLATION}) != 0) {
        return -1;
    }
    return ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
}

// At the file's end, wherever that is by now.
long SystemCalls::write(int file, const char* bytes, std::size_t count) {
    OVERLAPPED atEnd = {};
    atEnd.Offset = atEnd.OffsetHigh = MAXDWORD;
    DWORD written = 0;
    const auto most = static_cast<DWORD>(std::min<std::size_t>(count, LONG_MAX));
    return ::WriteFile(handleOf(file), bytes, most, &written, &atEnd) != 0
               ? static_cast<long>(written)
               : failed(lastErrno());
}

long SystemCalls::read(int file, char* bytes, std::size_t count) {
    return ::_read(file, bytes, static_cast<unsigned>(std::min<std::size_t>(count, LONG_MAX)));
}

// A folder needs none: each change of it is on the disk when its call returns.
int SystemCalls::sync(int file) {
    return isFolder(handleOf(file)) ? 0 : answer(::FlushFileBuffers(handleOf(file)));
}

int SystemCalls::truncate(int file, long long size) {
    const int error = ::_chsize_s(file, size);
    return error == 0 ? 0 : failed(error);
}

int SystemCalls::close(int file) {
    return ::_close(file);
}

int SystemCalls::rename(const std::string& from, const std::string& to) {
    return patiently(
        [&] {
            return ::MoveFileExW(wideText(from).c_str(), wideText(to).c_str(),
                                 MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        },
        {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED});
}

int SystemCalls::link(const std::string& from, const std::string& to) {
    return answer(::CreateHardLinkW(wideText(to).c_str(), wideText(from).c_str(), nullptr));
}

int SystemCalls::remove(const std::string& path) {
    return patiently([&] { return ::DeleteFileW(wideText(path).c_str()); },
                     {ERROR_SHARING_VIOLATION});
}

int SystemCalls::name(int, const std::string&) {
    return failed(ENOTSUP);
}

// Opening it has locked it.
int SystemCalls::lock(int) {
    return 0;
}

} // namespace vantrel
