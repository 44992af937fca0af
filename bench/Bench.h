#ifndef ORU_BENCH_BENCH_H
#define ORU_BENCH_BENCH_H

// The benchmark harness: a clock, side-by-side timing of variants, and the
// rows of the results table. Benchmarks time things; tests never do.

#include <functional>
#include <string>
#include <vector>

namespace Oru
{
namespace OGL
{
class ContextOffscreen;
}
} // namespace Oru

namespace bench
{

/// Seconds on the performance counter.
double now();

/// The median of the values (the mean of the two middle ones for an even count);
/// 0 for none.
double median(std::vector<double> values);

/// One thing being timed. run(n) performs n operations and returns the seconds
/// its timed part took; most variants time everything, see timed().
struct Variant
{
    std::string name;
    std::function<double(unsigned int n)> run;
};

/// Times n calls of f() as one block.
template <class F>
double timed(unsigned int n, F&& f)
{
    const double start = now();
    for (unsigned int i = 0; i < n; ++i)
        f(i);
    return now() - start;
}

/// How much to run: rounds of batches, each batch n operations of every
/// variant in turn (A, B, C, A, B, C, ...), so that machine noise hits all.
struct Plan
{
    unsigned int rounds;
    unsigned int batchesPerRound;
    unsigned int operationsPerBatch;
};

/// Per variant: the median over rounds of each round's median batch, in
/// seconds per operation, and the round medians themselves.
struct Timing
{
    double perOperation;
    std::vector<double> roundMedians;
};

/// Runs the plan once untimed as a warm-up batch, then for real.
std::vector<Timing> compare(std::vector<Variant> const& variants, Plan const& plan);

/// The median over rounds of a's round median divided by b's: the ratio both
/// saw under the same conditions.
double ratio(Timing const& a, Timing const& b);

/// One line of the results table.
struct Row
{
    std::string figure;   // "1. Error-checking interception"
    std::string variant;  // what was timed
    std::string absolute; // "12.6 ns/call"
    std::string ratio;    // "1.02x the floor"
    std::string goal;     // "<= 1.05x the floor", or empty
    std::string met;      // "yes", "no", or empty when there is no goal
};

typedef std::vector<Row> Rows;

/// Formats a duration given in seconds with a fixed unit ("ns", "us", "ms").
std::string format(double seconds, char const* unit, int decimals = 1);
std::string formatRatio(double value, char const* against);
std::string formatNumber(double value, int decimals = 1);
char const* yesNo(bool met);

/// What a section gets: the context the program started the layer for, and
/// the path of the program itself (for the sections that start fresh processes).
struct Environment
{
    Oru::OGL::ContextOffscreen* context;
    std::string program;
};

/// One figure (or a group of figures) of the table.
struct Section
{
    char const* name;
    void (*run)(Environment& env, Rows& rows);
};

// The sections, one per file.
void interceptionSection(Environment& env, Rows& rows);
void decoratorSection(Environment& env, Rows& rows);
void bulkDataSection(Environment& env, Rows& rows);
void tokenNameSection(Environment& env, Rows& rows);
void startupSection(Environment& env, Rows& rows);
void contextSection(Environment& env, Rows& rows);

/// The modes a fresh process of the program runs for the cold start-up
/// figure; argv after the mode name. Returns the exit code.
int coldStartupMain(std::vector<std::string> const& args);

/// Starts the program again with the arguments, waits, and returns its exit code.
int runChild(std::string const& program, std::vector<std::string> const& args);

/// Rows as tab-separated lines, for rows computed in another process.
void writeRows(std::string const& path, Rows const& rows);
Rows readRows(std::string const& path);

/// Progress on the console.
void log(char const* format, ...);

} // namespace bench

#endif
