#include "platform/desktop/clips/LibavClip.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>
#include <vector>

extern "C" {
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

namespace tarnloft::libav {
namespace {

// Containers of their own bytes. Playlists, scripts and lists of pictures, which name other files,
// are not among them, and neither are raw streams, which any text may be taken for.
constexpr const char* containers = "mov,matroska,avi,mpeg,mpegts,mpegvideo,ogg,flv,asf,mxf,dv";

// What clips of the last decades hold; the many decoders of old games stay off.
constexpr const char* decoders =
    "h264,hevc,libdav1d,libaom-av1,vp8,vp9,libvpx,libvpx-vp9,mpeg1video,mpeg2video,mpegvideo,mpeg4,"
    "msmpeg4v1,msmpeg4v2,msmpeg4,h263,h263i,h263p,wmv1,wmv2,wmv3,vc1,flv,vp6,vp6a,vp6f,theora,"
    "mjpeg,"
    "mjpegb,prores,dnxhd,cfhd,hap,dvvideo,qtrle,rpza,smc,svq1,svq3,cinepak,msrle,msvideo1,rawvideo,"
    "v210,v308,v408,v410,r210,yuv4,png,tiff,gif,jpeg2000,ffv1,huffyuv,ffvhuff,utvideo,magicyuv,"
    "8bps,"
    "aac,aac_latm,mp1float,mp2,mp2float,mp3,mp3float,ac3,eac3,dca,opus,vorbis,flac,alac,amrnb,"
    "amrwb,"
    "wmav1,wmav2,wmapro,nellymoser,pcm_alaw,pcm_mulaw,pcm_s8,pcm_u8,pcm_s16le,pcm_s16be,pcm_s24le,"
    "pcm_s24be,pcm_s32le,pcm_s32be,pcm_f32le,pcm_f32be,adpcm_ima_qt,adpcm_ima_wav,adpcm_ms";

constexpr int bufferSize = 32 * 1024;
constexpr int mostStreams = 64;
constexpr const char* mostPixels = "50000000";      // a frame's; room for 8K
constexpr size_t largestBlock = size_t(160) << 20;  // bytes; a frame of 8K, an index of a day
constexpr int64_t probedBytes = int64_t(5) * 1000 * 1000;

// The library's settings for the whole process: silence, and an end to what one table of a file may
// take; otherwise a file of a few bytes asks for an index of gigabytes.
void setUpLibrary() {
  static const bool done = [] {
    av_log_set_level(AV_LOG_QUIET);
    av_max_alloc(largestBlock);
    return true;
  }();
  Q_UNUSED(done)
}

int refuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) {
  return AVERROR(EPERM);
}

int isInterrupted(void* source) { return static_cast<ByteSource*>(source)->isExpired() ? 1 : 0; }

// One set of decoder options for each stream.
class DecoderOptions {
 public:
  explicit DecoderOptions(unsigned count, int threads = 1) : options_(count, nullptr) {
    for (AVDictionary*& each : options_) {
      av_dict_set_int(&each, "threads", threads, 0);
      av_dict_set(&each, "max_pixels", mostPixels, 0);
    }
  }
  ~DecoderOptions() {
    for (AVDictionary*& each : options_) av_dict_free(&each);
  }
  Q_DISABLE_COPY_MOVE(DecoderOptions)

  AVDictionary** data() { return options_.data(); }

 private:
  std::vector<AVDictionary*> options_;
};

}  // namespace

ByteSource::ByteSource(posix::OpenFile file, Expiry expiry)
    : file_(std::move(file)), expiry_(std::move(expiry)) {
  auto* const buffer = static_cast<unsigned char*>(av_malloc(bufferSize));
  context_.reset(avio_alloc_context(buffer, bufferSize, 0, this, read, nullptr, seek));
}

void ByteSource::ReleaseContext::operator()(AVIOContext* context) const {
  av_freep(&context->buffer);  // libavformat may have put another in its place
  avio_context_free(&context);
}

int ByteSource::read(void* self, uint8_t* buffer, int capacity) {
  auto& source = *static_cast<ByteSource*>(self);
  if (source.isExpired()) return AVERROR_EXIT;
  ssize_t count = 0;
  do {
    count = ::pread(source.file_.file.number(), buffer, size_t(capacity), source.position_);
  } while (count < 0 && errno == EINTR);
  if (count < 0) return AVERROR(errno);
  source.position_ += count;
  return count == 0 ? AVERROR_EOF : int(count);
}

int64_t ByteSource::seek(void* self, int64_t offset, int whence) {
  auto& source = *static_cast<ByteSource*>(self);
  const qint64 size = source.file_.info.st_size;
  switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE: return size;
    case SEEK_CUR: offset += source.position_; break;
    case SEEK_END: offset += size; break;
    default: break;
  }
  if (offset < 0) return AVERROR(EINVAL);
  return source.position_ = offset;
}

std::unique_ptr<Clip> Clip::open(const QString& path, Expiry expiry) {
  auto file = posix::openRegularFile(path);
  return file ? open(std::move(*file), std::move(expiry)) : nullptr;
}

std::unique_ptr<Clip> Clip::open(posix::OpenFile file, Expiry expiry) {
  setUpLibrary();
  std::unique_ptr<Clip> clip(new Clip(std::move(file), std::move(expiry)));
  return clip->openFormat() && clip->findStreams() ? std::move(clip) : nullptr;
}

bool Clip::openFormat() {
  AVFormatContext* format = avformat_alloc_context();
  format->pb = source_.context();
  format->flags |= AVFMT_FLAG_CUSTOM_IO;
  format->io_open = refuseToOpen;
  format->interrupt_callback = {isInterrupted, &source_};
  format->probesize = probedBytes;
  format->max_streams = mostStreams;
  format->format_whitelist = av_strdup(containers);
  format->codec_whitelist = av_strdup(decoders);
  format->protocol_whitelist = av_strdup("none");
  if (avformat_open_input(&format, nullptr, nullptr, nullptr) < 0) return false;  // frees it
  format_.reset(format);
  return true;
}

// Some containers show their streams only as these come. All that the look at the streams can come
// to must be known before it, because it opens decoders, and takes limits for known streams only.
void Clip::meetStreams() {
  const Packet packet(av_packet_alloc());
  while (avio_tell(format_->pb) < probedBytes && read(*packet)) continue;
  av_seek_frame(format_.get(), -1, 0, AVSEEK_FLAG_BYTE);
}

bool Clip::findStreams() {
  if (format_->nb_streams == 0) meetStreams();
  DecoderOptions options(format_->nb_streams);
  return avformat_find_stream_info(format_.get(), options.data()) >= 0 && format_->nb_streams > 0;
}

AVStream* Clip::videoStream() const {
  constexpr int stills = AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS;
  AVStream** const end = format_->streams + format_->nb_streams;
  AVStream** const found = std::find_if(format_->streams, end, [](const AVStream* stream) {
    return stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !(stream->disposition & stills);
  });
  return found == end ? nullptr : *found;
}

AVStream* Clip::soundStream() const {
  const AVStream* const pictures = videoStream();
  const int index = av_find_best_stream(format_.get(), AVMEDIA_TYPE_AUDIO, -1,
                                        pictures ? pictures->index : -1, nullptr, 0);
  return index < 0 ? nullptr : format_->streams[index];
}

double Clip::start() const {
  return format_->start_time == AV_NOPTS_VALUE ? 0 : double(format_->start_time) / AV_TIME_BASE;
}

double Clip::secondsOf(int64_t timestamp, const AVStream& stream) const {
  return double(timestamp) * av_q2d(stream.time_base) - start();
}

int64_t Clip::timestampAt(double seconds, const AVStream& stream) const {
  return int64_t(std::clamp((start() + seconds) / av_q2d(stream.time_base), -1e18, 1e18));
}

void Clip::keepOnly(const AVStream& stream, const AVStream* other) {
  for (unsigned i = 0; i < format_->nb_streams; ++i) {
    AVStream* const each = format_->streams[i];
    if (each != &stream && each != other) each->discard = AVDISCARD_ALL;
  }
}

Clip::Reading Clip::readNext(AVPacket& packet) {
  av_packet_unref(&packet);
  if (isExpired()) return Reading::failure;
  const int code = av_read_frame(format_.get(), &packet);
  if (code >= 0) return Reading::packet;
  return code == AVERROR_EOF ? Reading::end : Reading::failure;
}

Decoder openDecoder(const AVStream& stream, int threads) {
  const AVCodec* const codec = avcodec_find_decoder(stream.codecpar->codec_id);
  if (!codec) return nullptr;
  Decoder decoder(avcodec_alloc_context3(codec));
  DecoderOptions options(1, threads);
  decoder->codec_whitelist = av_strdup(decoders);
  decoder->pkt_timebase = stream.time_base;
  if (avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0) return nullptr;
  if (avcodec_open2(decoder.get(), codec, options.data()) < 0) return nullptr;
  return decoder;
}

}  // namespace tarnloft::libav
