// Draws the same sprites by this library and by three others, in turn, and prints how long it took as a table.
#include "bench/peers/Contestant.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace {

constexpr int rounds = 5;
constexpr double shortestMeasurement = 3e6; // ns

double ThreadTime()
{
    timespec now {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return 1e9 * static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec);
}

double TimeDrawings(Stage& stage, int count)
{
    const double start = ThreadTime();
    for (int i = 0; i < count; ++i)
        stage.Draw();
    return ThreadTime() - start;
}

// Nanoseconds for one drawing, over as many as take long enough; the shorter attempts before warm the caches.
double TimeOneDrawing(Stage& stage)
{
    for (int count = 1;; count *= 2) {
        const double time = TimeDrawings(stage, count);
        if (time >= shortestMeasurement)
            return time / count;
    }
}

// What one contestant did with one workload.
struct Result {
    std::vector<double> times; // ns per covered pixel, one of each round
    int error = 0;

    bool Any() const { return !times.empty(); }
    double Median() const
    {
        std::vector<double> sorted = times;
        std::ranges::sort(sorted);
        return sorted[sorted.size() / 2];
    }
};

// Times first, and then looks whether one more drawing on a fresh screen shows what it should.
void PlayRound(const Workload& workload, const Contestant& contestant, Result& result)
{
    const std::unique_ptr<Stage> stage = contestant.prepare(workload);
    if (!stage)
        return;
    stage->Paint(Scene());
    result.times.push_back(TimeOneDrawing(*stage) / static_cast<double>(workload.coveredPixels));
    stage->Paint(Scene());
    stage->Draw();
    result.error = std::max(result.error, LargestChannelError(stage->Look(), workload.exact));
}

using Row = std::vector<Result>; // one of each contestant

// Every round goes through all workloads, and at each workload through all contestants.
std::vector<Row> PlayAll(const std::vector<Workload>& workloads, const std::vector<Contestant>& contestants)
{
    std::vector<Row> rows(workloads.size(), Row(contestants.size()));
    for (int round = 0; round < rounds; ++round)
        for (size_t i = 0; i < workloads.size(); ++i)
            for (size_t j = 0; j < contestants.size(); ++j)
                PlayRound(workloads[i], contestants[j], rows[i][j]);
    return rows;
}

std::string Processor()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("model name"))
            return line.substr(line.find(": ") + 2);
    return "unknown processor";
}

std::string CellOf(const Result& result)
{
    if (!result.Any())
        return "–";
    char text[80];
    const auto [lowest, highest] = std::ranges::minmax(result.times);
    std::snprintf(text, sizeof text, "%.3f (%.3f–%.3f), %d", result.Median(), lowest, highest, result.error);
    return text;
}

void PrintTable(
    const std::vector<Workload>& workloads, const std::vector<Contestant>& contestants, const std::vector<Row>& rows)
{
    std::printf("| %s |", Processor().c_str());
    for (const Contestant& contestant : contestants)
        std::printf(" %s |", contestant.name.c_str());
    std::printf("\n|---|");
    for (size_t j = 0; j < contestants.size(); ++j)
        std::printf("---|");
    for (size_t i = 0; i < workloads.size(); ++i) {
        std::printf("\n| %s |", workloads[i].name.c_str());
        for (const Result& result : rows[i])
            std::printf(" %s |", CellOf(result).c_str());
    }
    std::printf("\n");
}

std::vector<Contestant> AllContestants()
{
    std::vector<Contestant> all = OwnContestants();
    for (const auto& peer : { SdlContestant(), PixmanContestant(), AllegroContestant() })
        all.push_back(peer);
    return all;
}

} // namespace

int main()
{
    const std::vector<Workload> workloads = MakeWorkloads();
    const std::vector<Contestant> contestants = AllContestants();
    PrintTable(workloads, contestants, PlayAll(workloads, contestants));
}
