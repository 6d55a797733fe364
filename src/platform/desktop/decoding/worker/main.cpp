// Reads foreign files for the main program, in a process that is shut in: their libraries can be
// made to run for ever, to fill the memory, or to do as an attacker wants. Serves one request after
// another from a socket on standard input.
#include "platform/desktop/decoding/worker/Confinement.h"
#include "platform/desktop/decoding/worker/FileDecoder.h"
#include "platform/desktop/decoding/worker/Sanitizer.h"

#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <malloc.h>
#include <poll.h>
#include <pthread.h>
#include <string>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnloft::decoding {
namespace {

constexpr int channel = STDIN_FILENO;
constexpr int keptMemory = 16 << 20;  // bytes that are free and stay for the next file

// An open file of the parent's; closed on destruction.
class Attachment {
 public:
  explicit Attachment(int number = -1) : number_(number) {}
  Attachment(Attachment&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  Attachment& operator=(Attachment&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Attachment(const Attachment&) = delete;
  Attachment& operator=(const Attachment&) = delete;
  ~Attachment() {
    if (number_ >= 0) ::close(number_);
  }
  int number() const { return number_; }

 private:
  int number_;
};

// The parent's memory for what is made.
class Target {
 public:
  explicit Target(int descriptor) {
    struct stat info {};
    if (descriptor < 0 || ::fstat(descriptor, &info) != 0 || info.st_size <= 0) return;
    size_ = size_t(info.st_size);
    address_ = ::mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
  }
  ~Target() {
    if (address_ != MAP_FAILED) ::munmap(address_, size_);
  }
  Target(const Target&) = delete;
  Target& operator=(const Target&) = delete;

  std::span<std::byte> bytes() const {
    if (address_ == MAP_FAILED) return {};
    return {static_cast<std::byte*>(address_), size_};
  }

 private:
  void* address_ = MAP_FAILED;
  size_t size_ = 0;
};

bool awaitRequest() {
  pollfd waiting{channel, POLLIN, 0};
  return ::poll(&waiting, 1, limits::idleSeconds * 1000) == 1;
}

// False if the other side has gone.
bool receive(Request& request, Attachment& attachment) {
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))];
  iovec content{&request, sizeof request};
  msghdr message{};
  message.msg_iov = &content;
  message.msg_iovlen = 1;
  message.msg_control = control;
  message.msg_controllen = sizeof control;
  if (::recvmsg(channel, &message, MSG_WAITALL | MSG_CMSG_CLOEXEC) != ssize_t(sizeof request)) {
    return false;
  }
  attachment = Attachment();
  const cmsghdr* const header = CMSG_FIRSTHDR(&message);
  if (header && header->cmsg_type == SCM_RIGHTS) {
    int number = -1;
    std::memcpy(&number, CMSG_DATA(header), sizeof number);
    attachment = Attachment(number);
  }
  return true;
}

template <class Word>
bool send(const Word& word) {
  return ::send(channel, &word, sizeof word, MSG_NOSIGNAL) == ssize_t(sizeof word);
}

// What is open, and what is made of it.
class Service {
 public:
  explicit Service(FileDecoder& decoder) : decoder_(decoder) {}

  // False if the other side has gone.
  bool serve(const Request& request, Attachment attachment) {
    if (request.action == Action::close) {
      close();
      return true;
    }
    Reply reply;
    try {
      reply = request.action == Action::open ? open(request, std::move(attachment))
                                             : make(request, attachment);
    } catch (const std::exception&) {
    }
    return send(reply);
  }

 private:
  Reply open(const Request& request, Attachment attachment) {
    close();
    input_ = std::move(attachment);
    file_ = decoder_.open(request, input_.number());
    return file_ ? Reply{1, file_->facts(), {}} : Reply{};
  }

  Reply make(const Request& request, const Attachment& attachment) {
    const Target target(attachment.number());
    const auto product = file_ ? file_->make(request, target.bytes()) : std::nullopt;
    return product ? Reply{1, {}, *product} : Reply{};
  }

  void close() {
    file_ = nullptr;
    input_ = Attachment();
    if (::mallinfo2().fordblks > size_t(keptMemory)) ::malloc_trim(0);
  }

  FileDecoder& decoder_;
  Attachment input_;  // outlives the file
  std::unique_ptr<ForeignFile> file_;
};

FileDecoder* load(const char* role) {
  using Entry = FileDecoder* (*)();
  const std::string name = std::string("libtarnloft-decode-") + role + ".so";
  void* const module = ::dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const entry = module ? ::dlsym(module, "tarnloftDecoder") : nullptr;
  if (!entry) std::fprintf(stderr, "Tarn Loft: %s\n", ::dlerror());
  return entry ? reinterpret_cast<Entry>(entry)() : nullptr;
}

// Stacks count as memory, used or not; and much that is freed shall be the system's again.
void setUpMemory() {
  ::mallopt(M_MMAP_THRESHOLD, 8 << 20);
  ::mallopt(M_TRIM_THRESHOLD, keptMemory);
  ::mallopt(M_ARENA_MAX, 1);  // each keeps what its threads have freed
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, 1 << 20);
  pthread_setattr_default_np(&attributes);
  pthread_attr_destroy(&attributes);
}

int run(const char* role) {
  setUpMemory();
  FileDecoder* const decoder = load(role);
  if (!decoder) return 1;
  decoder->prepare();
  Cage cage;
  cage.folders = decoder->folders();
  cage.basicMemory = limits::basicMemory;
  cage.mostMemory = limits::exportMemory;
  if (!confine(cage) || !send(Hello{})) return 1;
  Service service(*decoder);
  Request request;
  Attachment attachment;
  while (awaitRequest() && receive(request, attachment)) {
    if (!service.serve(request, std::move(attachment))) return 1;
  }
  return 0;
}

}  // namespace
}  // namespace tarnloft::decoding

int main(int argc, char** argv) {
  using namespace tarnloft::decoding;
  if (argc != 2) return 2;
  return std::strcmp(argv[1], sanitizerName) == 0 ? sanitize() : run(argv[1]);
}
