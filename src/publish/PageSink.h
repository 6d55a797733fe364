#pragma once

#include "platform/FileStore.h"

#include <QByteArray>
#include <QByteArrayView>

namespace tarnloft {

// Takes a page's UTF-8 bytes as they are made. What was written can be taken back to a position or
// written once more. A failure sticks: later calls do nothing, and `failed` tells.
class PageSink {
 public:
  virtual ~PageSink() = default;

  PageSink& operator<<(QByteArrayView utf8) {
    write(utf8);
    return *this;
  }

  virtual qint64 position() const = 0;
  // Forgets all that stands behind `position`.
  virtual void rewind(qint64 position) = 0;
  // Appends `length` bytes that were written from `position` on.
  virtual void repeat(qint64 position, qint64 length) = 0;
  virtual bool failed() const = 0;
  // So many of the page's items have been written.
  virtual void tellItems(qsizetype /*count*/) {}

 private:
  virtual void write(QByteArrayView utf8) = 0;
};

// Keeps the page in memory.
class MemorySink : public PageSink {
 public:
  const QByteArray& bytes() const { return bytes_; }

  qint64 position() const override { return bytes_.size(); }
  void rewind(qint64 position) override { bytes_.truncate(position); }
  void repeat(qint64 position, qint64 length) override;
  bool failed() const override { return false; }

 private:
  void write(QByteArrayView utf8) override { bytes_.append(utf8); }

  QByteArray bytes_;
};

// Hands the page on to a file through a small buffer, for as long as it is wanted.
class FileSink : public PageSink {
 public:
  FileSink(FileWriter& file, Progress& progress);

  // Hands on what is still buffered; gives the first error of all that was written.
  Result<void> finish();

  qint64 position() const override { return handedOn_ + buffer_.size(); }
  void rewind(qint64 position) override;
  void repeat(qint64 position, qint64 length) override;
  bool failed() const override { return !status_; }
  void tellItems(qsizetype count) override;

 private:
  void write(QByteArrayView utf8) override;
  void hand(QByteArrayView utf8);
  void flush();

  FileWriter& file_;
  Progress& progress_;
  QByteArray buffer_;
  qint64 handedOn_ = 0;  // bytes that the file has
  Result<void> status_;
};

}  // namespace tarnloft
