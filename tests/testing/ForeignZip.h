#pragma once

#include <QByteArray>
#include <QFile>
#include <QStringList>

#include <archive.h>
#include <archive_entry.h>

namespace tarnloft {

// Writes a zip entry by entry, with whatever names and links a test wants in it.
class ForeignZip {
 public:
  explicit ForeignZip(const QString& path, const char* options = "") {
    ::archive_write_set_format_zip(handle_);
    ::archive_write_set_options(handle_, options);
    ::archive_write_set_passphrase(handle_, "secret");
    ::archive_write_open_filename(handle_, QFile::encodeName(path).constData());
  }
  ~ForeignZip() { ::archive_write_free(handle_); }
  Q_DISABLE_COPY_MOVE(ForeignZip)

  ForeignZip& file(const char* name, const QByteArray& content = "x", int rights = 0644) {
    return add(name, AE_IFREG, rights, content, nullptr);
  }
  ForeignZip& folder(const char* name, int rights = 0755) {
    return add(name, AE_IFDIR, rights, {}, nullptr);
  }
  ForeignZip& link(const char* name, const char* target) {
    return add(name, AE_IFLNK, 0777, {}, target);
  }

  // Entries in words: "folder/", "file", "link -> target". A file named manifest.json holds that.
  ForeignZip& add(const QStringList& entries, const QByteArray& manifest) {
    for (const QString& entry : entries) {
      const QByteArray name = entry.section(" -> ", 0, 0).toUtf8();
      const QByteArray target = entry.section(" -> ", 1).toUtf8();
      if (!target.isEmpty()) {
        link(name, target);
      } else if (name.endsWith('/')) {
        folder(name);
      } else {
        file(name, name.endsWith("/manifest.json") ? manifest : "x");
      }
    }
    return *this;
  }

 private:
  ForeignZip& add(const char* name, unsigned type, int rights, const QByteArray& content,
                  const char* target) {
    archive_entry* const entry = ::archive_entry_new();
    ::archive_entry_copy_pathname(entry, name);
    ::archive_entry_set_filetype(entry, type);
    ::archive_entry_set_perm(entry, mode_t(rights));
    ::archive_entry_set_size(entry, content.size());
    if (target) ::archive_entry_copy_symlink(entry, target);
    ::archive_write_header(handle_, entry);
    ::archive_write_data(handle_, content.constData(), size_t(content.size()));
    ::archive_entry_free(entry);
    return *this;
  }

  archive* const handle_ = ::archive_write_new();
};

}  // namespace tarnloft
