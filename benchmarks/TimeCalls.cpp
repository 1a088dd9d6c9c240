#include "TimeCalls.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Operations.h"

namespace {

constexpr int kShort = kTextLengths[0];
constexpr const char* kReference = "icu";

void Time(benchmark::State& state, ZRLong (*call)(Texts&)) {
  Texts texts(kShort);
  for (auto _ : state)
    benchmark::DoNotOptimize(call(texts));
}

void RegisterCalls(const std::vector<Operation>& operations) {
  for (const Operation& operation : operations) {
    if (operation.before != Before::kWhateverIsThere)
      continue;
    const std::string name = std::string(operation.name) + "/" + std::to_string(kShort) + "/";
    benchmark::RegisterBenchmark((name + kReference).c_str(), Time, operation.icu);
    benchmark::RegisterBenchmark((name + "ZRString").c_str(), Time, operation.library);
  }
}

/// Prints the sides of each benchmark next to each other when all have run: the least time of all
/// repetitions, which other work on the machine disturbs least, and the ratio of the medians.
class SideBySide : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration)
        continue;
      const std::string name = run.run_name.function_name;
      const std::size_t slash = name.rfind('/');
      const std::string what = name.substr(0, slash);
      const auto place = order_.try_emplace(what, run.family_index).first;
      place->second = std::min(place->second, run.family_index);
      times_[what][name.substr(slash + 1)].push_back(run.GetAdjustedCPUTime());
    }
  }

  void Finalize() override {
    std::printf("| Call / units | | ns | ICU ns | Difference | Ratio | Ratio of medians |\n");
    std::printf("|---|---|---:|---:|---:|---:|---:|\n");
    std::vector<std::pair<std::int64_t, std::string>> inOrder;
    for (const auto& [what, place] : order_)
      inOrder.emplace_back(place, what);
    std::sort(inOrder.begin(), inOrder.end());
    for (const auto& [place, what] : inOrder) {
      std::map<std::string, std::vector<double>>& sides = times_[what];
      for (auto& [side, times] : sides) {
        if (side == kReference || sides[kReference].empty())
          continue;
        const double least = Least(times);
        const double leastReference = Least(sides[kReference]);
        std::printf("| %s | %s | %.2f | %.2f | %+.2f | %.3f | %.3f |\n", what.c_str(), side.c_str(),
                    least, leastReference, least - leastReference, least / leastReference,
                    Median(times) / Median(sides[kReference]));
      }
    }
  }

 private:
  static double Least(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
  }

  static double Median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

  std::map<std::string, std::int64_t> order_;  ///< place of each "what" among the registered
  std::map<std::string, std::map<std::string, std::vector<double>>> times_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  RegisterCopies();
  RegisterEdits();
  RegisterCalls(Queries());
  RegisterCalls(Edits());
  RegisterCalls(HandleFunctions());
  RegisterCalls(Creations());
  SideBySide reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
