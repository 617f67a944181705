// Reading a model file's bytes: a regular file only, sized from the file, read once.

#include "model/model_file_reader.h"

// Std
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#include <fstream>
#else
#include <cerrno>

// POSIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tnw {
namespace {

// The path as a file-system path: the text is UTF-8, also where the platform's own narrow
// encoding is not (Windows). Empty when the text cannot be a path.
std::filesystem::path pathFromUtf8(const std::string& text) {
  try {
    return std::filesystem::path(
        std::u8string(reinterpret_cast<const char8_t*>(text.data()), text.size()));
  } catch (const std::exception&) {
    return {};
  }
}

// The buffer for a file of fileSize bytes: the reader never goes past kMaxModelFileBytes, so a
// larger file is read as its model part alone.
void allocate(ModelFileBytes& out, std::uintmax_t fileSize) {
  const std::size_t size = static_cast<std::size_t>(
      std::min<std::uintmax_t>(fileSize, ModelFileReader::kMaxModelFileBytes));
  out.data = std::make_unique_for_overwrite<std::uint8_t[]>(size == 0 ? 1 : size);
  out.size = size;
}

#if defined(_WIN32)

ModelFileBytes readFile(const std::filesystem::path& path, UiServices* busyUi) {
  ModelFileBytes out;
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) return out;
  const std::uintmax_t fileSize = std::filesystem::file_size(path, ec);
  if (ec) return out;
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) return out;
  out.opened = true;
  if (busyUi != nullptr) busyUi->setBusy(true);
  allocate(out, fileSize);
  file.read(reinterpret_cast<char*>(out.data.get()), static_cast<std::streamsize>(out.size));
  out.size = static_cast<std::size_t>(file.gcount());
  out.readError = file.bad();
  return out;
}

#else

// Closes the descriptor when it goes.
class Descriptor {
 public:
  explicit Descriptor(int fd) : m_fd(fd) {}
  ~Descriptor() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return m_fd; }

 private:
  int m_fd;
};

ModelFileBytes readFile(const std::filesystem::path& path, UiServices* busyUi) {
  ModelFileBytes out;
  // Opening without blocking: a pipe opened for reading would otherwise wait for a writer. The
  // file's type is then taken from the open descriptor itself.
  const Descriptor fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat info {};
  if (fd.get() < 0 || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) return out;
  out.opened = true;
  if (busyUi != nullptr) busyUi->setBusy(true);
  allocate(out, info.st_size < 0 ? 0 : static_cast<std::uintmax_t>(info.st_size));
  // One pass; read() may return less than asked, and a file that shrank meanwhile ends early.
  std::size_t got = 0;
  while (got < out.size) {
    const ssize_t n = ::read(fd.get(), out.data.get() + got, out.size - got);
    if (n > 0) {
      got += static_cast<std::size_t>(n);
    } else if (n == 0) {
      break;
    } else if (errno != EINTR) {
      out.readError = true;
      break;
    }
  }
  out.size = got;
  return out;
}

#endif

}  // namespace

ModelFileBytes readModelFileBytes(const std::string& PathAndFileName, UiServices* busyUi) {
  const std::filesystem::path path = pathFromUtf8(PathAndFileName);
  if (path.empty()) return {};
  return readFile(path, busyUi);
}

}  // namespace tnw
