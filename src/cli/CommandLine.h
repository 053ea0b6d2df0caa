#pragma once

#include <getopt.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hullwright {

// Exit statuses of the command line.
inline constexpr int exitFailed = 1;
inline constexpr int exitUsage = 2;
inline constexpr int exitIncomplete = 3;  ///< memory or a limit cut an import short

/// One thing that the program does.
struct Verb {
  const char* name;
  const char* help;
  int (*run)(int argc, char** argv);  ///< the first argument is the verb
  int trouble = exitFailed;           ///< status where memory or standard output ends
};

extern const Verb checkVerb;
extern const Verb diffVerb;
extern const Verb exportVerb;
extern const Verb importVerb;
extern const Verb infoVerb;
extern const Verb renderVerb;
extern const Verb reportVerb;

/// Reports what went wrong on standard error; the exit status for a failure.
int Fail(const std::string& problem);

/// Reports something about a file on standard error that is no failure.
void Remark(const std::string& file, std::u16string_view text);

/// Reports what is wrong with the arguments of a verb on standard error, and where its help is; the
/// exit status for wrong usage. Null for no verb.
int UsageError(const char* verb, const std::string& problem);

/// What is wrong with a name that no side has.
std::string UnknownSide(const std::string& name);

/// Whether standard input is named more than once, which is reported.
bool ReadsInputTwice(const char* verb, const std::vector<std::string>& inputs);

/// Whether a verb would write over one of its inputs, which is reported in these words. Asked
/// before the ending of the output, so that each verb says it first.
bool WouldOverwrite(const char* verb, const std::vector<std::string>& inputs,
                    const std::string& output, const char* words);

/// The arguments of a verb that are no options.
struct Arguments {
  std::vector<std::string> words;
  bool wrong = false;  ///< an option is unknown, lacks its value, or was refused, as was reported
};

/// Reads the options of a verb, whose name is the first argument. `take` gets each with its letter
/// and its value, which is null for one without, and returns what is wrong with it; empty for
/// nothing.
Arguments ReadArguments(int argc, char** argv, const char* letters, std::span<const option> options,
                        const std::function<std::string(int letter, const char* value)>& take);

}  // namespace hullwright
