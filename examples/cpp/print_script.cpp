// Prints the commands that turn one configuration into another, both given as files of the packed record.
//
//     cmake -B build && cmake --build build
//     build/print_script running.bin wanted.bin

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <new>
#include <pon/command_file_generator.h>
#include <stdexcept>
#include <string>

namespace {

/// A diff session; one at a time.
class Session {
  public:
    Session(GCfg& running, GCfg& wanted)
    {
        if (initiate_diff(&running, &wanted, 0, 0) != 0) {
            throw std::bad_alloc();
        }
    }
    ~Session() { finalize_diff(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
};

std::unique_ptr<GCfg> read_record(const std::string& path)
{
    auto record = std::make_unique<GCfg>();
    std::ifstream file(path, std::ios::binary);
    if (!file.read(reinterpret_cast<char*>(record.get()), sizeof(GCfg)) || file.get() != EOF) {
        throw std::runtime_error(path + ": not a record of " + std::to_string(sizeof(GCfg)) + " bytes");
    }
    return record;
}

std::string script(GCfg& running, GCfg& wanted)
{
    const Session session(running, wanted);
    const std::unique_ptr<char, decltype(&std::free)> text(GetDiff(&running, &wanted), &std::free);
    if (!text) {
        throw std::bad_alloc();
    }
    return text.get();
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc != 3) {
        throw std::runtime_error(std::string("usage: ") + argv[0] + " RUNNING WANTED");
    }
    const auto running = read_record(argv[1]);
    const auto wanted = read_record(argv[2]);
    std::cout << script(*running, *wanted);
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
}
