// Runs that share a program directory start and end at the same moment.
#include <sys/wait.h>

#include "addin/addin.h"
#include "persist/persist.h"
#include "persist/persist_dir.h"

namespace kiso {
namespace {

struct Together : PersistDir {
  Together() {
    put("DEFAULT.CNF", shipped("DEFAULT.CNF"));
    put("DEFAULT.AIN", shipped("DEFAULT.AIN"));
    put("DEFAULT.CDI", shipped("DEFAULT.CDI"));
    READ_CNF();
    READ_AIN();
    READ_CDI();
  }
  // Does it in several processes, again and again in each; how many of them came to the end.
  template <class F>
  static int in_processes(F run) {
    constexpr int PROCESSES = 4, TIMES = 15;
    for (int process = 0; process < PROCESSES; ++process) {
      if (fork() != 0) continue;
      int error = 0;
      for (int i = 0; i < TIMES && error == 0; ++i) error = error_of(run);
      _exit(error);
    }
    int good = 0, status = 0;
    while (wait(&status) > 0) good += status == 0;
    return good;
  }
};

TEST_F(Together, EveryRunWritesItsSettings) {
  FUZZY_H = 77;
  EXPECT_EQ(in_processes([] { WRITE_CNF(); }), 4);
  FUZZY_H = 0;
  READ_CNF();
  EXPECT_EQ(FUZZY_H, 77);
  EXPECT_EQ(all_files().count("KISOCNF.TMP"), 0u);
}

TEST_F(Together, EveryRunWritesItsDictionaries) {
  EXPECT_EQ(in_processes([] { WRITE_CDI(); }), 4);
  EXPECT_EQ(error_of([] { READ_CDI(); }), 0);
}

TEST_F(Together, NoRunReadsTheRegistryBetweenItsOldAndItsNewFile) {
  AD_CNT = 1;
  AD_ID(0) = "MINE", AD_NAME(0) = "mine", AD_PATH(0) = "/mine", AD_KIND(0) = 1;
  WRITE_AIN();
  EXPECT_EQ(in_processes([] {
              WRITE_AIN();
              READ_AIN();
              if (AD_CNT != 1) throw RuntimeError(9);
            }),
            4);
  READ_AIN();
  EXPECT_EQ(AD_CNT, 1);
}

}  // namespace
}  // namespace kiso
