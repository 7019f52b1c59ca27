// Ahead of the other headers of the system.
#include <winsock2.h>
#include <ws2tcpip.h>

#include <array>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "services/platform/Process.h"
#include "services/platform/WindowsText.h"
#include "services/platform/Workers.h"

namespace lithmark::platform {

namespace {

// What a worker started anew is told: the handle of the shared memory, of how many workers, and which it is. The memory
// holds the numbers, and behind them each worker's stream as the system hands it to another process.
constexpr wchar_t kVariable[] = L"LITHMARK_WORKER";

void StartSockets() {
    static const int started = [] {
        WSADATA about;
        return ::WSAStartup(MAKEWORD(2, 2), &about);
    }();
    static_cast<void>(started);
}

SOCKET Raw(Socket socket) noexcept {
    return static_cast<SOCKET>(socket);
}

void CloseStream(Socket socket) noexcept {
    if (socket != kNoSocket) ::closesocket(Raw(socket));
}

// Both ends of a stream on this machine; nobody else can have connected, for both ends know each other's number.
bool MakePair(std::array<Socket, 2>& ends) {
    StartSockets();
    ends = {kNoSocket, kNoSocket};
    const SOCKET listener = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in place = {};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    int size = sizeof place;
    auto* address = reinterpret_cast<sockaddr*>(&place);
    const bool listens = listener != INVALID_SOCKET && ::bind(listener, address, size) == 0 &&
                         ::listen(listener, 1) == 0 && ::getsockname(listener, address, &size) == 0;
    if (listens) {
        const SOCKET one = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        if (::connect(one, address, size) == 0) {
            sockaddr_in mine = {}, caller = {};
            int mineSize = sizeof mine, callerSize = sizeof caller;
            ::getsockname(one, reinterpret_cast<sockaddr*>(&mine), &mineSize);
            for (;;) {
                const SOCKET other = ::accept(listener, reinterpret_cast<sockaddr*>(&caller), &callerSize);
                if (other == INVALID_SOCKET) break;
                if (caller.sin_port == mine.sin_port) {
                    ends = {static_cast<Socket>(one), static_cast<Socket>(other)};
                    break;
                }
                ::closesocket(other);
            }
        }
        if (ends[0] == kNoSocket) ::closesocket(one);
    }
    if (listener != INVALID_SOCKET) ::closesocket(listener);
    if (ends[0] == kNoSocket) return false;
    const DWORD atOnce = 1;
    for (const Socket end : ends)
        ::setsockopt(Raw(end), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&atOnce), sizeof atOnce);
    for (const Socket end : ends) ::SetHandleInformation(reinterpret_cast<HANDLE>(end), HANDLE_FLAG_INHERIT, 0);
    return true;
}

// Workers end with the program, however it ends.
HANDLE Job() {
    static const HANDLE job = [] {
        const HANDLE made = ::CreateJobObjectW(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        ::SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return made;
    }();
    return job;
}

WSAPROTOCOL_INFOW* StreamsBehind(std::atomic<std::uint64_t>* numbers, std::size_t count) noexcept {
    return reinterpret_cast<WSAPROTOCOL_INFOW*>(numbers + count);
}

int AsInt(DWORD number) noexcept {
    return static_cast<int>(number);
}

}  // namespace

SharedNumbers::SharedNumbers(std::size_t count) : count_(count) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const auto bytes = static_cast<DWORD>(count * (sizeof(*numbers_) + sizeof(WSAPROTOCOL_INFOW)));
    const HANDLE mapping = ::CreateFileMappingW(INVALID_HANDLE_VALUE, &inherited, PAGE_READWRITE, 0, bytes, nullptr);
    void* memory = mapping != nullptr ? ::MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, bytes) : nullptr;
    if (memory == nullptr) throw std::bad_alloc();
    handle_ = reinterpret_cast<std::intptr_t>(mapping);
    numbers_ = new (memory) std::atomic<std::uint64_t>[count];
}

SharedNumbers::~SharedNumbers() {
    ::UnmapViewOfFile(numbers_);
    ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

bool SendAll(Socket socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const int sent = ::send(Raw(socket), bytes.data(), static_cast<int>(bytes.size()), 0);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::size_t ReceiveSome(Socket socket, char* to, std::size_t count) {
    const int received = ::recv(Raw(socket), to, static_cast<int>(count), 0);
    return received <= 0 ? 0 : static_cast<std::size_t>(received);
}

std::size_t SendSome(Socket socket, std::string_view bytes) {
    const int sent = ::send(Raw(socket), bytes.data(), static_cast<int>(bytes.size()), 0);
    return sent <= 0 ? 0 : static_cast<std::size_t>(sent);
}

std::ptrdiff_t ReceiveIfAny(Socket socket, char* to, std::size_t count) {
    const int received = ::recv(Raw(socket), to, static_cast<int>(count), 0);
    if (received < 0 && ::WSAGetLastError() == WSAEWOULDBLOCK) return 0;
    return received <= 0 ? -1 : received;
}

bool WorkersStartAnew() noexcept {
    return true;
}

void RunAsWorker(const WorkerMain& work) {
    const auto told = Variable("LITHMARK_WORKER");
    if (!told) return;
    ::SetEnvironmentVariableW(kVariable, nullptr);
    StartSockets();
    char* rest = nullptr;
    const auto mapping = static_cast<std::intptr_t>(std::strtoll(told->c_str(), &rest, 10));
    const auto count = static_cast<std::size_t>(std::strtoull(rest, &rest, 10));
    const auto index = static_cast<std::size_t>(std::strtoull(rest, &rest, 10));
    void* memory = ::MapViewOfFile(reinterpret_cast<HANDLE>(mapping), FILE_MAP_ALL_ACCESS, 0, 0, 0);
    if (memory == nullptr || index >= count) EndAtOnce(1);
    auto* numbers = static_cast<std::atomic<std::uint64_t>*>(memory);
    const SOCKET socket = ::WSASocketW(AF_INET, SOCK_STREAM, IPPROTO_TCP, StreamsBehind(numbers, count) + index, 0, 0);
    if (socket == INVALID_SOCKET) EndAtOnce(1);
    ::SetConsoleCtrlHandler(nullptr, TRUE);  // the program alone decides when its workers end
    work(static_cast<Socket>(socket), numbers[index]);
    EndAtOnce(0);
}

bool WorkerProcess::Start(const WorkerMain&, SharedNumbers& numbers, std::size_t index) {
    std::array<Socket, 2> ends;
    if (!MakePair(ends)) return false;
    const std::string told =
        std::to_string(numbers.Handle()) + " " + std::to_string(numbers.Count()) + " " + std::to_string(index);
    ::SetEnvironmentVariableW(kVariable, Wide(told).c_str());
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const HANDLE nowhere = ::CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         &inherited, OPEN_EXISTING, 0, nullptr);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = start.hStdOutput = start.hStdError = nowhere;
    PROCESS_INFORMATION started;
    std::wstring words = ::GetCommandLineW();
    const bool runs = ::CreateProcessW(WidePath(ProgramFile()).c_str(), words.data(), nullptr, nullptr, TRUE,
                                       CREATE_SUSPENDED, nullptr, nullptr, &start, &started) != 0;
    ::SetEnvironmentVariableW(kVariable, nullptr);
    ::CloseHandle(nowhere);
    const bool given = runs && ::WSADuplicateSocketW(Raw(ends[1]), started.dwProcessId,
                                                     StreamsBehind(&numbers[0], numbers.Count()) + index) == 0;
    CloseStream(ends[1]);
    if (runs && !given) {
        ::TerminateProcess(started.hProcess, 1);
        ::CloseHandle(started.hThread);
        ::CloseHandle(started.hProcess);
    }
    if (!given) {
        CloseStream(ends[0]);
        return false;
    }
    ::AssignProcessToJobObject(Job(), started.hProcess);
    ::ResumeThread(started.hThread);
    ::CloseHandle(started.hThread);
    u_long atOnce = 1;
    ::ioctlsocket(Raw(ends[0]), FIONBIO, &atOnce);
    process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
    socket_ = ends[0];
    return true;
}

int WorkerProcess::Id() const noexcept {
    return process_ == 0 ? 0 : AsInt(::GetProcessId(reinterpret_cast<HANDLE>(process_)));
}

int WorkerProcess::End() noexcept {
    if (process_ == 0) return 0;
    const auto process = reinterpret_cast<HANDLE>(std::exchange(process_, 0));
    constexpr DWORD kPatience = 1000;
    constexpr UINT kEnded = 0;
    if (::WaitForSingleObject(process, 0) != WAIT_OBJECT_0) ::TerminateProcess(process, kEnded);
    ::WaitForSingleObject(process, kPatience);
    DWORD status = 0;
    ::GetExitCodeProcess(process, &status);
    ::CloseHandle(process);
    CloseStream(std::exchange(socket_, kNoSocket));
    return AsInt(status);
}

int StarterId() noexcept {
    return 0;
}

bool Await(std::span<Awaited> streams, int milliseconds) {
    std::vector<WSAPOLLFD> polled;
    std::vector<Awaited*> asked;
    for (Awaited& stream : streams) {
        if (stream.Stream == kNoSocket) continue;
        polled.push_back(
            {Raw(stream.Stream), static_cast<SHORT>(stream.ToWrite ? POLLRDNORM | POLLWRNORM : POLLRDNORM), 0});
        asked.push_back(&stream);
    }
    if (polled.empty()) {
        ::Sleep(static_cast<DWORD>(milliseconds));
        return false;
    }
    if (::WSAPoll(polled.data(), static_cast<ULONG>(polled.size()), milliseconds) <= 0) return false;
    for (std::size_t i = 0; i < polled.size(); ++i) {
        asked[i]->CanWrite = (polled[i].revents & POLLWRNORM) != 0;
        asked[i]->CanRead = (polled[i].revents & ~POLLWRNORM) != 0;
    }
    return true;
}

}  // namespace lithmark::platform
