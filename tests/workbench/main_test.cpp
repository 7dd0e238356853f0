// The program as a process: signals and pipes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <string>

namespace Tarvex::MainTest {
namespace {

/// The program as a child whose standard input and output are pipes.
class Child {
 public:
  explicit Child(std::array<char const*, 3> words) {
    EXPECT_EQ(pipe(m_in.data()), 0);
    EXPECT_EQ(pipe(m_out.data()), 0);
    m_pid = fork();
    if (m_pid != 0) {
      close(m_in[0]);
      close(m_out[1]);
      return;
    }
    dup2(m_in[0], STDIN_FILENO);
    dup2(m_out[1], STDOUT_FILENO);
    for (int const end : {m_in[0], m_in[1], m_out[0], m_out[1]}) close(end);
    execl(TARVEX_PROGRAM, "tarvex", words[0], words[1], words[2], nullptr);
    _exit(127);
  }
  ~Child() {
    close(m_in[1]);
    close(m_out[0]);
  }
  Child(Child const&) = delete;
  Child& operator=(Child const&) = delete;

  void CloseOutput() {
    close(m_out[0]);
    m_out[0] = -1;
  }
  void Signal(int signal) const { kill(m_pid, signal); }
  /// Returns once the child handles a signal: until then it would end by it.
  void AwaitHandler(int signal) const {
    auto const status = "/proc/" + std::to_string(m_pid) + "/status";
    for (std::uint64_t caught = 0; (caught >> (signal - 1) & 1) == 0; usleep(1000)) {
      std::ifstream file(status);
      for (std::string line; std::getline(file, line);)
        if (line.starts_with("SigCgt:")) caught = std::stoull(line.substr(7), nullptr, 16);
    }
  }
  void Send(std::string const& text) const {
    EXPECT_EQ(write(m_in[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }

  /// Waits for its end. @return the exit code, -1 when a signal ended it.
  int Wait() const {
    int status = 0;
    waitpid(m_pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  std::array<int, 2> m_in{};
  std::array<int, 2> m_out{};
  pid_t m_pid = 0;
};

TEST(Main, AnInterruptEndsWith130) {
  for (int const signal : {SIGINT, SIGTERM}) {
    Child child({"info", "-", "--json"});
    child.Send("{");  // so that it waits for the rest of the model
    child.AwaitHandler(signal);
    child.Signal(signal);
    EXPECT_EQ(child.Wait(), 130);
  }
}

TEST(Main, AReaderThatWentAwayIsNoCrash) {
  Child child({"reference", "-q", nullptr});
  child.CloseOutput();
  EXPECT_NE(child.Wait(), -1);
}

}  // namespace
}  // namespace Tarvex::MainTest
