#include "platform/desktop/decoding/worker/Confinement.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace tarnloft;
using decoding::Cage;

namespace {

constexpr std::uint64_t memory = 64u << 20;

Cage smallCage() {
  Cage cage;
  cage.basicMemory = cage.mostMemory = memory;
  return cage;
}

// What a process of its own finds that has shut itself in.
bool holdsInside(const Cage& cage, const std::function<bool()>& claim) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(decoding::confine(cage) && claim() ? 0 : 1);
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool isRefused(long result) { return result < 0 && (errno == EPERM || errno == EACCES); }

}  // namespace

class TestConfinement : public QObject {
  Q_OBJECT

 private slots:
  void refusesWhatReachesOut() {
    TestServices disk;
    QVERIFY(writeFile(disk.path("a.txt"), "brand"));
    const QByteArray file = QFile::encodeName(disk.path("a.txt"));
    const QByteArray other = QFile::encodeName(disk.path("b.txt"));
    const pid_t parent = ::getpid();
    char byte = 0;
    const iovec place{&byte, 1};
    const Cases<std::function<long()>> cases{
        {"read a file", [&] { return ::open(file.constData(), O_RDONLY); }},
        {"write to a file", [&] { return ::open(file.constData(), O_WRONLY); }},
        {"empty a file", [&] { return ::truncate(file.constData(), 0); }},
        {"make a file", [&] { return ::open(other.constData(), O_CREAT | O_WRONLY, 0600); }},
        {"remove a file", [&] { return ::unlink(file.constData()); }},
        {"move a file", [&] { return ::rename(file.constData(), other.constData()); }},
        {"change a mode", [&] { return ::chmod(file.constData(), 0777); }},
        {"make a pipe on disk", [&] { return ::mkfifo(other.constData(), 0600); }},
        {"read its own memory as a file", [] { return ::open("/proc/self/mem", O_RDWR); }},
        {"connect", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0); }},
        {"start a process", [] { return long(::fork()); }},
        {"become a program", [] { return ::execl("/bin/true", "true", nullptr); }},
        {"signal another process", [&] { return ::kill(parent, 0); }},
        {"read another process",
         [&] { return ::process_vm_readv(parent, &place, 1, &place, 1, 0); }},
        {"write to another process",
         [&] { return ::process_vm_writev(parent, &place, 1, &place, 1, 0); }},
        {"make a namespace", [] { return ::unshare(CLONE_NEWUSER); }},
        {"take memory that nobody counts", [] { return ::syscall(SYS_memfd_create, "a", 0); }},
        {"share memory without a file",
         [] {
           return ::mmap(nullptr, 4096, PROT_READ, MAP_SHARED | MAP_ANONYMOUS, -1, 0) == MAP_FAILED
                      ? -1L
                      : 0L;
         }},
        {"raise its own bounds",
         [] {
           const rlimit bound{RLIM_INFINITY, RLIM_INFINITY};
           return ::setrlimit(RLIMIT_DATA, &bound);
         }},
        {"be let out by a filter", [] { return ::prctl(PR_SET_SECCOMP, 1, 0, 0, 0); }}};
    cases.check([&](const std::function<long()>& attempt) {
      QVERIFY(holdsInside(smallCage(), [&] { return isRefused(attempt()); }));
    });
    QCOMPARE(contentOf(disk.path("a.txt")), QByteArray("brand"));
    QVERIFY(!QFile::exists(disk.path("b.txt")));
  }

  void leavesWhatDecodingNeeds() {
    QVERIFY(holdsInside(smallCage(), [] {
      std::vector<char> some(memory / 2, 'a');
      int sum = 0;
      std::thread([&] { sum = some.at(7); }).join();
      return sum == 'a';
    }));
    QVERIFY(holdsInside(smallCage(), [] { return std::malloc(memory * 2) == nullptr; }));
  }

  // The desktop's fonts; where the system can't bound it to them, none.
  void readsOnlyTheFoldersItIsGiven() {
    TestServices disk, others;
    QVERIFY(writeFile(disk.path("font"), "font") && writeFile(others.path("letter"), "letter"));
    Cage cage = smallCage();
    cage.folders = {disk.folder.path().toStdString()};
    const QByteArray font = QFile::encodeName(disk.path("font"));
    const QByteArray letter = QFile::encodeName(others.path("letter"));
    const bool isBounded = ::syscall(444, nullptr, 0, 1u) > 0;
    QCOMPARE(holdsInside(cage, [&] { return ::open(font.constData(), O_RDONLY) >= 0; }), isBounded);
    QVERIFY(holdsInside(cage, [&] {
      return isRefused(::open(letter.constData(), O_RDONLY)) &&
             isRefused(::open(font.constData(), O_WRONLY)) &&
             isRefused(::open(font.constData(), O_RDONLY | O_TRUNC));
    }));
  }
};

QTEST_GUILESS_MAIN(TestConfinement)
#include "tst_confinement.moc"
