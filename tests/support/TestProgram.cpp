#include "support/TestProgram.h"

#include <cstdio>
#include <cstring>
#include <vector>

namespace veldmark::test {
namespace {

struct Entry {
    const char *className;
    Registration::Run run;
};

std::vector<Entry> &entries()
{
    static std::vector<Entry> all;
    return all;
}

} // namespace

Registration::Registration(const char *className, Run run)
{
    entries().push_back({className, run});
}

} // namespace veldmark::test

int main(int argc, char **argv)
{
    using namespace veldmark::test;
    if (argc > 1) {
        for (const Entry &entry : entries()) {
            if (std::strcmp(argv[1], entry.className) == 0) {
                // Removes the class name; the program's own name stays first.
                argv[1] = argv[0];
                // A critical message, such as about a change of phase that no table knows, fails
                // the test.
                qputenv("QT_FATAL_CRITICALS", "1");
                return entry.run(argc - 1, argv + 1);
            }
        }
    }
    std::fputs("usage: CLASS [Qt Test arguments]; the classes:\n", stderr);
    for (const Entry &entry : entries())
        std::fprintf(stderr, "  %s\n", entry.className);
    return 2;
}
