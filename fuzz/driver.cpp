// Runs a fuzz target without libFuzzer: a fixed number of inputs out of a fixed seed, so that every run is
// the same. They are made of random bytes and of the words of a dictionary.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <vector>

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The number that two hexadecimal digits stand for.
std::uint8_t byteOf(const std::string& digits)
{
    return static_cast<std::uint8_t>(std::stoul(digits, nullptr, 16));
}

/// A dictionary's quoted word, with \\, \" and \xAB undone.
Bytes wordOf(const std::string& line)
{
    Bytes word;
    for (std::size_t at = 1; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] == '\\' && line[at + 1] == 'x') {
            word.push_back(byteOf(line.substr(at + 2, 2)));
            at += 3;
            continue;
        }
        if (line[at] == '\\')
            ++at;
        word.push_back(static_cast<std::uint8_t>(line[at]));
    }
    return word;
}

/// The words of a dictionary in libFuzzer's form, a quoted one a line; other lines are comments.
std::vector<Bytes> readWords(const char* path)
{
    std::vector<Bytes> words;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('"'))
            words.push_back(wordOf(line));
    }
    return words;
}

Bytes randomInput(std::mt19937& random, const std::vector<Bytes>& words)
{
    Bytes input;
    const auto pieces = random() % 60;
    for (unsigned piece = 0; piece < pieces; ++piece) {
        if (random() % 3 == 0) {
            input.push_back(
                static_cast<std::uint8_t>(random() % 2 == 0 ? 0 : random())); // 0 parts an input's texts
            continue;
        }
        const Bytes& word = words[random() % words.size()];
        input.insert(input.end(), word.begin(), word.end());
    }
    return input;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "usage: %s DICTIONARY RUNS\n", arguments[0]);
        return 2;
    }
    const auto words = readWords(arguments[1]);
    if (words.empty()) {
        std::fprintf(stderr, "no words in %s\n", arguments[1]);
        return 2;
    }
    const long runs = std::strtol(arguments[2], nullptr, 10);
    std::mt19937 random(20061121);
    for (long run = 0; run < runs; ++run) {
        const Bytes input = randomInput(random, words);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%ld inputs\n", runs);
    return 0;
}
