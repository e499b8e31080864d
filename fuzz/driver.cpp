// Runs a fuzz target without libFuzzer: a fixed number of inputs out of a fixed seed, so that every run is
// the same.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Words that the texts under test are made of, so that random inputs get past their first byte.
constexpr const char* words[] = {"|",
                                 " ",
                                 "$$",
                                 "$",
                                 "<",
                                 ">",
                                 "bot",
                                 "$Lock ",
                                 "$Hello ",
                                 "$LogedIn ",
                                 "$Quit ",
                                 "$GetPass",
                                 "$OpList ",
                                 "$NickList ",
                                 "$MyINFO $ALL ",
                                 "$ValidateDenide",
                                 "$GetINFO bot ",
                                 " Pk=",
                                 "\r\n",
                                 "=",
                                 "\"",
                                 ",",
                                 "1|",
                                 "<!DOC",
                                 "9",
                                 "t",
                                 "}",
                                 "{",
                                 "tNews",
                                 "[",
                                 "]",
                                 "iLastID",
                                 "*",
                                 "<Name>",
                                 "</Name>"};

Bytes randomInput(std::mt19937& random)
{
    Bytes input;
    const auto pieces = random() % 60;
    for (unsigned piece = 0; piece < pieces; ++piece) {
        if (random() % 3 == 0) {
            input.push_back(
                static_cast<std::uint8_t>(random() % 2 == 0 ? 0 : random())); // 0 parts an input's texts
            continue;
        }
        for (const char* at = words[random() % std::size(words)]; *at != '\0'; ++at)
            input.push_back(static_cast<std::uint8_t>(*at));
    }
    return input;
}

} // namespace

int main(int count, char** arguments)
{
    const long runs = count > 1 ? std::strtol(arguments[1], nullptr, 10) : 20000;
    std::mt19937 random(20061121);
    for (long run = 0; run < runs; ++run) {
        const Bytes input = randomInput(random);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%ld inputs\n", runs);
    return 0;
}
