#include "ui/forms/guard.h"

#include <new>

#include "pc/print_job.h"

using namespace Qt::StringLiterals;

bool guardedBy(const std::function<void()>& work, const std::function<void(const jet::Error&)>& say) {
  try {
    work();
    return true;
  } catch (const jet::Error& error) {
    say(error);
  } catch (const pc::PrintError& error) {
    if (!error.text.isEmpty()) say({482, error.text});  // the language's number for a printer's error
  } catch (const std::bad_alloc&) {
    say({7, u"메모리가 부족합니다."_s});
  } catch (const std::exception& error) {
    say({5, QString::fromUtf8(error.what())});
  }
  return false;
}

bool guarded(Prompts& prompts, const std::function<void()>& work) {
  return guardedBy(
      work, [&](const jet::Error& error) { prompts.tellError(u"작업 중 오류가 발생했습니다."_s, error); });
}
