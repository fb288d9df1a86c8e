// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/SceneFilter.h"

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

#include <cstdlib>
#include <string>

#include "movies/LibAv.h"

namespace velra {

namespace {

struct GraphRelease {
  void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};
struct InOutRelease {
  void operator()(AVFilterInOut* end) const { avfilter_inout_free(&end); }
};
using AvFilterEnd = std::unique_ptr<AVFilterInOut, InOutRelease>;

AvFilterEnd graphEnd(const char* name, AVFilterContext* filter) {
  AvFilterEnd end(avfilter_inout_alloc());
  end->name = av_strdup(name);
  end->filter_ctx = filter;
  return end;
}

}  // namespace

struct SceneFilter::Graph {
  explicit Graph(const AVFrame& frame)
      : width(frame.width), height(frame.height), format(frame.format) {
    const std::string in = "video_size=" + std::to_string(width) + "x" + std::to_string(height) +
                           ":pix_fmt=" + std::to_string(format) + ":time_base=1/25";
    // The detection itself looks at the light of pictures alone unless they come as colours.
    const std::string chain =
        "scale=" + std::to_string(kWidth) + ":-1:flags=area,format=rgb24,scdet=threshold=100";
    usable = make(in, chain);
  }

  bool make(const std::string& in, const std::string& chain) {
    if (avfilter_graph_create_filter(&source, avfilter_get_by_name("buffer"), "in", in.c_str(),
                                     nullptr, graph.get()) < 0 ||
        avfilter_graph_create_filter(&sink, avfilter_get_by_name("buffersink"), "out", nullptr,
                                     nullptr, graph.get()) < 0) {
      return false;
    }
    graph->nb_threads = 1;
    AVFilterInOut* outputs = graphEnd("in", source).release();
    AVFilterInOut* inputs = graphEnd("out", sink).release();
    const int made =
        avfilter_graph_parse_ptr(graph.get(), chain.c_str(), &inputs, &outputs, nullptr);
    const AvFilterEnd outputsLeft(outputs);
    const AvFilterEnd inputsLeft(inputs);
    return made >= 0 && avfilter_graph_config(graph.get(), nullptr) >= 0;
  }

  bool fits(const AVFrame& frame) const {
    return frame.width == width && frame.height == height && frame.format == format;
  }

  std::unique_ptr<AVFilterGraph, GraphRelease> graph{avfilter_graph_alloc()};
  AVFilterContext* source = nullptr;
  AVFilterContext* sink = nullptr;
  int width;
  int height;
  int format;
  std::int64_t pictures = 0;
  bool usable = false;
};

SceneFilter::SceneFilter() = default;
SceneFilter::~SceneFilter() = default;

SceneFilter::Scored SceneFilter::score(const AVFrame& frame) {
  if (!graph_ || !graph_->fits(frame)) graph_ = std::make_unique<Graph>(frame);
  const AvFrame in(av_frame_clone(&frame));
  AvFrame out(av_frame_alloc());
  if (!graph_->usable || !in || !out) return {};
  in->pts = graph_->pictures++;
  if (av_buffersrc_add_frame(graph_->source, in.get()) < 0 ||
      av_buffersink_get_frame(graph_->sink, out.get()) < 0) {
    return {};
  }
  const AVDictionaryEntry* entry = av_dict_get(out->metadata, "lavfi.scd.score", nullptr, 0);
  return {entry ? std::strtod(entry->value, nullptr) : 0,
          std::shared_ptr<const AVFrame>(out.release(), [](const AVFrame* released) {
            auto* mine = const_cast<AVFrame*>(released);
            av_frame_free(&mine);
          })};
}

double differenceOf(const AVFrame& one, const AVFrame& other) {
  if (one.width != other.width || one.height != other.height) return 100;
  const int bytes = one.width * 3;
  std::int64_t sum = 0;
  for (int y = 0; y < one.height; ++y) {
    const std::uint8_t* a = one.data[0] + static_cast<std::ptrdiff_t>(y) * one.linesize[0];
    const std::uint8_t* b = other.data[0] + static_cast<std::ptrdiff_t>(y) * other.linesize[0];
    for (int x = 0; x < bytes; ++x) sum += std::abs(int{a[x]} - int{b[x]});
  }
  return static_cast<double>(sum) * 100 / 255 / (static_cast<double>(bytes) * one.height);
}

}  // namespace velra
