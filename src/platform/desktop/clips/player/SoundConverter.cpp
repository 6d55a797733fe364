#include "platform/desktop/clips/player/SoundConverter.h"

#include "platform/desktop/clips/player/SoundOutput.h"

#include <algorithm>

namespace tarnloft::libav {

bool SoundConverter::prepareFor(const AVFrame& frame) {
  const int channels = frame.ch_layout.nb_channels;
  if (converter_ && format_ == frame.format && rate_ == frame.sample_rate &&
      channels_ == channels) {
    return true;
  }
  format_ = frame.format;
  rate_ = frame.sample_rate;
  channels_ = channels;
  AVChannelLayout from{}, to{};
  av_channel_layout_default(&to, SoundOutput::channels);
  if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC) {
    av_channel_layout_default(&from, channels);
  } else {
    av_channel_layout_copy(&from, &frame.ch_layout);
  }
  SwrContext* made = nullptr;
  swr_alloc_set_opts2(&made, &to, AV_SAMPLE_FMT_FLT, SoundOutput::rate, &from,
                      AVSampleFormat(frame.format), frame.sample_rate, 0, nullptr);
  converter_.reset(made);
  av_channel_layout_uninit(&from);
  if (made && swr_init(made) < 0) converter_.reset();
  return converter_ != nullptr;
}

std::vector<float> SoundConverter::samplesOf(const AVFrame& frame) {
  if (!prepareFor(frame)) return {};
  const int most = swr_get_out_samples(converter_.get(), frame.nb_samples);
  std::vector<float> samples(size_t(std::max(most, 0)) * SoundOutput::channels);
  auto* output = reinterpret_cast<uint8_t*>(samples.data());
  const int count = swr_convert(converter_.get(), &output, std::max(most, 0),
                                const_cast<const uint8_t**>(frame.extended_data), frame.nb_samples);
  samples.resize(size_t(std::max(count, 0)) * SoundOutput::channels);
  return samples;
}

}  // namespace tarnloft::libav
