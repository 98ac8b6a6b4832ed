#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// Prints one table at the end, of ratios alone: a bare time says more about the machine than about the program.
class RatioReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    [[nodiscard]] bool HasFailures() const { return hasFailures_; }

private:
    struct Row {
        std::string name;
        double ratio;
        std::string sentence;
    };

    std::vector<Row> rows_;
    bool hasFailures_ = false;
};
