#include "RatioReporter.h"

#include <iomanip>

bool RatioReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const auto ratio = run.counters.find("ratio");
        if (run.error_occurred || ratio == run.counters.end()) {
            hasFailures_ = true;
            GetErrorStream() << run.run_name.function_name << " failed: " << run.error_message << '\n';
        } else if (run.run_type == Run::RT_Iteration) {
            rows_.push_back({run.run_name.function_name, ratio->second.value, run.report_label});
            GetErrorStream() << "measured " << run.run_name.function_name << '\n';
        }
    }
}

void RatioReporter::Finalize() {
    std::ostream& out = GetOutputStream();
    out << std::fixed;
    for (const Row& row : rows_) {
        out << std::setw(8) << std::setprecision(row.ratio < 0.1 ? 3 : 2) << row.ratio << "  " << std::left
            << std::setw(20) << row.name << std::right << "  " << row.sentence << '\n';
    }
    out.flush();
}
