#include "Bench.h"

#include <windows.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>

namespace bench
{

double now()
{
    static const double period = [] {
        LARGE_INTEGER frequency;
        QueryPerformanceFrequency(&frequency);
        return 1.0 / static_cast<double>(frequency.QuadPart);
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) * period;
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const std::size_t middle = values.size() / 2;
    std::nth_element(values.begin(), values.begin() + middle, values.end());
    const double upper = values[middle];
    if (values.size() % 2 != 0)
        return upper;
    const double lower = *std::max_element(values.begin(), values.begin() + middle);
    return (lower + upper) / 2.0;
}

std::vector<Timing> compare(std::vector<Variant> const& variants, Plan const& plan)
{
    const std::size_t count = variants.size();
    for (Variant const& variant : variants)
        variant.run(plan.operationsPerBatch); // warm caches, lazy driver state and branch predictors

    std::vector<Timing> timings(count);
    std::vector<std::vector<double>> batches(count);
    for (unsigned int round = 0; round < plan.rounds; ++round)
    {
        for (std::vector<double>& b : batches)
            b.clear();
        for (unsigned int batch = 0; batch < plan.batchesPerRound; ++batch)
        {
            // The first variant of each batch changes, so that none always runs
            // right after the same neighbour.
            for (std::size_t k = 0; k < count; ++k)
            {
                const std::size_t v = (batch + k) % count;
                batches[v].push_back(variants[v].run(plan.operationsPerBatch) / plan.operationsPerBatch);
            }
        }
        for (std::size_t v = 0; v < count; ++v)
            timings[v].roundMedians.push_back(median(batches[v]));
    }
    for (Timing& timing : timings)
        timing.perOperation = median(timing.roundMedians);
    return timings;
}

double ratio(Timing const& a, Timing const& b)
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < a.roundMedians.size() && i < b.roundMedians.size(); ++i)
        ratios.push_back(a.roundMedians[i] / b.roundMedians[i]);
    return median(ratios);
}

std::string format(double seconds, char const* unit, int decimals)
{
    const std::string u(unit);
    const double scale = u == "ns" ? 1e9 : u == "us" ? 1e6 : u == "ms" ? 1e3 : 1.0;
    return formatNumber(seconds * scale, decimals) + " " + (u == "us" ? "\xC2\xB5s" : u);
}

std::string formatRatio(double value, char const* against)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.2fx", value);
    return against && *against ? std::string(text) + " " + against : std::string(text);
}

std::string formatNumber(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%.*f", decimals, value);
    return text;
}

char const* yesNo(bool met)
{
    return met ? "yes" : "**no**";
}

namespace
{

std::string quote(std::string const& argument)
{
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string::npos)
        return argument;
    std::string quoted = "\"";
    for (char c : argument)
    {
        if (c == '"')
            quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

} // namespace

int runChild(std::string const& program, std::vector<std::string> const& args)
{
    std::string commandLine = quote(program);
    for (std::string const& argument : args)
        commandLine += " " + quote(argument);

    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    std::vector<char> line(commandLine.begin(), commandLine.end());
    line.push_back('\0');
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0,
                        nullptr, nullptr, &startup, &process))
        return -1;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

void writeRows(std::string const& path, Rows const& rows)
{
    std::ofstream out(path, std::ios::binary);
    for (Row const& r : rows)
        out << r.figure << '\t' << r.variant << '\t' << r.absolute << '\t' << r.ratio << '\t' << r.goal << '\t'
            << r.met << '\n';
}

Rows readRows(std::string const& path)
{
    Rows rows;
    std::ifstream in(path, std::ios::binary);
    for (std::string line; std::getline(in, line);)
    {
        std::istringstream fields(line);
        Row r;
        std::getline(fields, r.figure, '\t');
        std::getline(fields, r.variant, '\t');
        std::getline(fields, r.absolute, '\t');
        std::getline(fields, r.ratio, '\t');
        std::getline(fields, r.goal, '\t');
        std::getline(fields, r.met, '\t');
        rows.push_back(r);
    }
    return rows;
}

void log(char const* format, ...)
{
    va_list args;
    va_start(args, format);
    std::vfprintf(stderr, format, args);
    va_end(args);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

} // namespace bench
