#include "FileWriter.h"

#include "Problem.h"
#include "Text.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace example
{

namespace
{

namespace fs = std::filesystem;

/// Where the text really goes: the file behind a link, so that the link stays one.
fs::path TargetOf(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
    {
        throw Problem(fs::is_directory(status) ? "this is a directory" : "this is no regular file");
    }
    return fs::exists(status) ? fs::canonical(path, error) : fs::path(path);
}

/// Opens a new file beside the target; tries a few names in case earlier ones are taken.
std::FILE* OpenBeside(const fs::path& target, fs::path& name)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i)
    {
        name = target;
        name += ".part" + std::to_string(i);
        std::FILE* file = std::fopen(name.c_str(), "wx");
        if (file != nullptr || errno != EEXIST)
        {
            return file;
        }
    }
    return nullptr;
}

bool WriteAndClose(std::FILE* file, const std::string& text)
{
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return (std::fclose(file) == 0) && written;
}

void Replace(const std::string& path, const std::string& text)
{
    const fs::path target = TargetOf(path);
    fs::path name;
    std::FILE* file = OpenBeside(target, name);
    if (file == nullptr)
    {
        throw Problem(std::strerror(errno));
    }
    std::error_code error;
    if (!WriteAndClose(file, text))
    {
        fs::remove(name, error);
        throw Problem("not all of it could be written");
    }
    fs::rename(name, target, error);
    if (error)
    {
        const std::string reason = error.message();
        fs::remove(name, error);
        throw Problem(reason);
    }
}

} // namespace

void ReplaceFile(const std::string& path, const std::string& text)
{
    try
    {
        Replace(path, text);
    }
    catch (const Problem& problem)
    {
        throw Problem("can't write " + Quoted(path) + ": " + problem.what());
    }
}

} // namespace example
