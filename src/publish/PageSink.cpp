#include "publish/PageSink.h"

namespace tarnloft {
namespace {

constexpr qsizetype bufferSize = 256 * 1024;

}  // namespace

void MemorySink::repeat(qint64 position, qint64 length) {
  bytes_.append(QByteArrayView(bytes_).sliced(position, length));
}

FileSink::FileSink(FileWriter& file, Progress& progress) : file_(file), progress_(progress) {
  buffer_.reserve(bufferSize);
}

void FileSink::tellItems(qsizetype count) {
  if (status_) status_ = progress_.advance(count);
}

void FileSink::hand(QByteArrayView utf8) {
  tellItems(0);
  if (status_) status_ = file_.write(utf8);
  handedOn_ += utf8.size();
}

void FileSink::write(QByteArrayView utf8) {
  if (buffer_.size() + utf8.size() > bufferSize) flush();
  if (utf8.size() < bufferSize) {
    buffer_.append(utf8);
  } else {
    hand(utf8);
  }
}

void FileSink::flush() {
  hand(buffer_);
  buffer_.resize(0);
}

void FileSink::rewind(qint64 position) {
  flush();
  if (status_) status_ = file_.truncate(position);
  handedOn_ = position;
}

void FileSink::repeat(qint64 position, qint64 length) {
  flush();
  if (status_) status_ = file_.repeat(position, length);
  handedOn_ += length;
}

Result<void> FileSink::finish() {
  flush();
  return status_;
}

}  // namespace tarnloft
