// Runs a fuzz target over the files of a folder, as a test.
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const QDir folder(QFile::decodeName(argv[1]));
  int count = 0;
  for (const QString& name : folder.entryList(QDir::Files)) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return 1;
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()),
                           size_t(bytes.size()));
    ++count;
  }
  std::printf("%d files\n", count);
  return count > 0 ? 0 : 1;
}
