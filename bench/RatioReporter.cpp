#include "RatioReporter.h"

#include <algorithm>
#include <iomanip>

bool RatioReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const auto ratio = run.counters.find("ratio");
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred || ratio == run.counters.end()) {
            hasFailures_ = true;
            GetErrorStream() << name << " failed: " << run.error_message << '\n';
        } else if (run.run_type == Run::RT_Iteration) {
            rows_.push_back({name, ratio->second.value, run.counters.at("target").value, run.report_label});
            GetErrorStream() << "measured " << name << '\n';
        }
    }
}

void RatioReporter::Finalize() {
    std::ostream& out = GetOutputStream();
    out << std::fixed << "   ratio   at most\n";
    for (const Row& row : rows_) {
        out << std::setw(8) << std::setprecision(2) << row.ratio << std::setw(8) << std::setprecision(1);
        if (row.target > 0) {
            out << row.target << (row.ratio <= row.target ? "       " : " missed");
        } else {
            out << ""
                << "       ";
        }
        out << "  " << std::left << std::setw(18) << row.name << std::right << row.sentence << '\n';
    }
    const auto promised = std::count_if(rows_.begin(), rows_.end(), [](const Row& row) { return row.target > 0; });
    const auto missed = std::count_if(rows_.begin(), rows_.end(),
                                      [](const Row& row) { return row.target > 0 && row.ratio > row.target; });
    out << promised - missed << " of " << promised << " targets are met.\n";
    out.flush();
}
