#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// Prints one table at the end, of ratios alone: a bare time says more about the machine than about the program. Beside
// each ratio stands the most that it may come to, and below the table how many came to more.
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // Whether something could not be measured. A target that is missed is no failure: the machine may be busy.
    [[nodiscard]] bool HasFailures() const { return hasFailures_; }

private:
    struct Row {
        std::string name;
        double ratio;
        double target;
        std::string sentence;
    };

    std::vector<Row> rows_;
    bool hasFailures_ = false;
};
