#pragma once

#include "support/Basics.h"

namespace KzXmlLib10::support {

/// Changes limits until its end.
class LimitsScope {
public:
    LimitsScope() = default;
    LimitsScope(std::uint64_t Limits::*figure, std::uint64_t value) { Set(figure, value); }
    LimitsScope(const LimitsScope&) = delete;
    LimitsScope& operator=(const LimitsScope&) = delete;
    ~LimitsScope() { SetLimits(m_before); }

    void Set(std::uint64_t Limits::*figure, std::uint64_t value) {
        Limits limits = GetLimits();
        limits.*figure = value;
        SetLimits(limits);
    }

private:
    const Limits m_before = GetLimits();
};

} // namespace KzXmlLib10::support
