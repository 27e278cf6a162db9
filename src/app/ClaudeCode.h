#pragma once

#include <memory>

namespace ravelo {

class AppSettings;
class LiveContext;
class PlanUsage;
struct Platform;
class SecondPlan;
class Usage;

/// What watches Claude Code: its newest session, the plan, and the plan of a second account. Main
/// thread.
class ClaudeCode {
public:
    /// Takes the folder watchers out of `platform`.
    ClaudeCode(Platform& platform, AppSettings& settings);
    ~ClaudeCode();
    ClaudeCode(const ClaudeCode&) = delete;
    ClaudeCode& operator=(const ClaudeCode&) = delete;

    [[nodiscard]] LiveContext& context() { return context_; }

    [[nodiscard]] PlanUsage& plan() { return plan_; }

    [[nodiscard]] SecondPlan& second() { return *second_; }

    /// Keeps the second account and whether Claude Code is installed up to date in `usage`.
    void show(Usage& usage);

private:
    void followSettings();

    AppSettings& settings_;
    LiveContext& context_;
    PlanUsage& plan_;
    std::unique_ptr<SecondPlan> second_;
};

} // namespace ravelo
