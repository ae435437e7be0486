// The widget application of a test program: made once before the first test
// and deleted after the last, never as a static of its own.
#pragma once

#include <QApplication>

#include <gtest/gtest.h>

namespace widgettest {

class Environment : public ::testing::Environment
{
public:
  void SetUp() override
  {
    static int argc = 1;
    static char name[] = "widget-test";
    static char* argv[] = {name, nullptr};
    m_app = new QApplication(argc, argv);
  }
  void TearDown() override
  {
    delete m_app;
    m_app = nullptr;
  }

private:
  QApplication* m_app = nullptr;
};

// Include once per test program, in one file: registers the environment.
inline ::testing::Environment* const kEnvironment = ::testing::AddGlobalTestEnvironment(new Environment);

} // namespace widgettest
