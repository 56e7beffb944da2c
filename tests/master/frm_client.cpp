// The customer forms, played by keys on the real windows.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "master/customers/frmClient.h"
#include "master/customers/frmNewClient.h"
#include "master/customers/frmSearchClient.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"

using namespace Qt::StringLiterals;

namespace {

class ClientForms : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks(QDate(2026, 11, 24));
    idle.pickers.day = "2026-03-01";
  }

  void addPlain(const QString& name, const QString& tel, int gas = 0) {
    tests::insertRows(pc.session.dbBasic, "Client(Name, Tel, GasInit, AppDate, HouseStyle, PayWay)",
                      {u"'%1', '%2', %3, '2019-04-02', 0, 1"_s.arg(name, tel).arg(gas)});
  }
  void fillBooks() {
    for (int i = 1; i <= 40; ++i) addPlain(u"손님%1"_s.arg(i), u"053-200-%1"_s.arg(1000 + i * 137));
    tests::insertRows(pc.session.dbBasic, "APT(Name, Dong, PostCode, Address, Height, Gubun)",
                      {"'한빛아파트', '101', '700-010', '대구 중구 동인동 1', 15, True",
                       "'한빛아파트', '102', '700-010', '대구 중구 동인동 2', 15, True"});
    for (int i = 0; i < 24; ++i)
      pc.session.dbBasic.Execute(
          u"Insert into Client(Name, Tel, BDName, Dong, Ho, HouseStyle, PayWay, VolumeYesNo, Volume, "
          "VolumeUnit, PostCode, Address, GasInit) Values('한빛아파트 101동 %1호', '053-421-%2', "
          "'한빛아파트', '101', '%1', 1, 2, True, '4', 1500, '700-010', '대구 중구 동인동 1', 0)"_s
              .arg(101 + i / 4 * 100 + i % 4)
              .arg(3000 + i));
  }
  static QWidget* sheet(const frmClient& form) {
    return form.findChild<QTabWidget*>("TabClient")->currentWidget();
  }
  template <class Box = QLineEdit>
  static Box* box(const QWidget* parent, const char* name) {
    return tests::part<Box>(*parent, name);
  }
  QString ask(const QString& sql) { return tests::rowsOf(pc.session.dbBasic, sql); }

  tests::TestPc pc;
  tests::IdleContext idle{pc.session};
};

TEST_F(ClientForms, aMeterCustomerIsEnteredByKeysAlone) {
  frmClient form(idle.context);
  form.resize(1040, 640);
  tests::show(form);
  EXPECT_EQ(tests::focused(), "BtnNew");
  idle.pickers.place = PostCodeChoice{"700-010", "대구 중구 동성로2가", ""};
  idle.pickers.regulator = VolumeChoice{"4", 1500};

  tests::key(Qt::Key_Return);
  ASSERT_EQ(tests::focused(), "TxtName");
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "고객의 이름이나 상호를 입력합니다");
  tests::compose({"ㄱ", "기", "김"}, "김");
  tests::keys({Qt::Key_Return, Qt::Key_Return});
  ASSERT_EQ(tests::focused(), "TxtTel");
  tests::enter("0531234567");
  EXPECT_EQ(box(sheet(form), "TxtTel")->text(), "053-123-4567");
  tests::keys({Qt::Key_Return, Qt::Key_Return});
  ASSERT_EQ(tests::focused(), "TxtPost");
  tests::enter("700");
  EXPECT_EQ(idle.pickers.asked, QStringList{"700"});
  ASSERT_EQ(tests::focused(), "TxtAddress");
  tests::enter(" 12");
  ASSERT_EQ(tests::focused(), "TxtAppDate");
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "가입일자를 입력합니다.  달력조회 = F12");
  tests::keys({Qt::Key_F12, Qt::Key_Return, Qt::Key_Return});
  ASSERT_EQ(tests::focused(), "TxtGasInit");
  tests::enter("12500");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(tests::focused(), "OptCash");
  tests::key(Qt::Key_Right);
  EXPECT_EQ(tests::focused(), "OptJiro");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(tests::focused(), "ChkVolume");
  tests::keys({Qt::Key_Space, Qt::Key_Return});
  ASSERT_EQ(tests::focused(), "TxtPressure");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(tests::focused(), "TxtVolumeUnit");
  for (const char* last : {"TxtSerial", "TxtStatus", "TxtItem", "TxtMemo", "BtnSave"}) {
    tests::key(Qt::Key_Return);
    ASSERT_EQ(tests::focused(), last);
  }
  tests::key(Qt::Key_Return);
  EXPECT_EQ(tests::focused(), "BtnNew") << "ready for the next customer";

  EXPECT_EQ(
      ask("Select Name, Tel, PostCode, Address, AppDate, GasInit, PayWay, Volume, VolumeUnit From Client"),
      "김|053-123-4567|700-010|대구 중구 동성로2가 12|2026-03-01|12500|2|4|1500");
  EXPECT_EQ(pc.session.dbYear.OpenRecordset("Select Count(*) As N From Evaporation")["N"].toLong(), 13);
}

TEST_F(ClientForms, aPlainCustomerSkipsTheRegulatorAndAWrongPlaceIsRefused) {
  frmClient form(idle.context);
  tests::show(form);
  tests::press(form, "BtnNew");
  QWidget* const page = sheet(form);
  box(page, "TxtPost")->setFocus();
  tests::type("999");
  pc.prompts.expect("등록된 우편번호나 읍/면/동 이름이 아닙니다!");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(tests::focused(), "TxtPost");
  box<QCheckBox>(page, "ChkVolume")->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_EQ(tests::focused(), "TxtSerial");
  pc.prompts.expect("고객성명/전화번호/주소 중 한가지는");
  tests::press(form, "BtnSave");
  EXPECT_EQ(tests::focused(), "TxtName");
}

TEST_F(ClientForms, listRowsFillTheBoxesAndDeleteTakesThemOut) {
  addPlain("가람", "053-111-1111");
  addPlain("나래", "053-222-2222", 3000);
  frmClient form(idle.context);
  tests::show(form);
  auto* const grid = sheet(form)->findChild<Spread*>();
  grid->setFocus();
  tests::key(Qt::Key_Down);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "나래");
  EXPECT_EQ(box(sheet(form), "TxtGasInit")->text(), "3,000");
  EXPECT_TRUE(form.findChild<QLabel*>("LblBottom")->text().endsWith("등록고객수 : 2명"));
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "고객자료의 삭제는 키보드의 Delete키로 합니다");

  box(sheet(form), "TxtMemo")->setText("계단");
  pc.prompts.expect("위와 같이 고객등록사항을 변경하시겠습니까?");
  tests::press(form, "BtnSave");
  EXPECT_EQ(ask("Select Memo From Client Where Name = '나래'"), "계단");

  pc.prompts.expect("이  름 : 나래    전화번호 : 053-222-2222");
  grid->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(ask("Select Name From Client"), "가람");
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "가람");
  EXPECT_TRUE(form.findChild<QLabel*>("LblBottom")->text().endsWith("등록고객수 : 1명"));
}

TEST_F(ClientForms, aNameWithAnApostropheEndsInABoxAndTheFormStaysUp) {
  frmClient form(idle.context);
  tests::show(form);
  tests::press(form, "BtnNew");
  box(sheet(form), "TxtAddress")->setText("O'Neil");
  pc.prompts.expect("오류");
  tests::press(form, "BtnSave");
  EXPECT_EQ(box(sheet(form), "TxtAddress")->text(), "O'Neil");
  EXPECT_EQ(ask("Select Code From Client"), "");
}

TEST_F(ClientForms, theSearchBehindTheSearchNameBringsTheCustomersPage) {
  fillBooks();
  frmClient form(idle.context);
  tests::show(form);
  idle.pickers.client = ClientChoice{41, ""};
  box(sheet(form), "TxtUName")->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(form.findChild<QTabWidget*>("TabClient")->currentIndex(), 1);
  EXPECT_EQ(box(sheet(form), "TxtHo")->text(), "101");
  EXPECT_EQ(sheet(form)->findChild<Spread*>()->activeRow(), 1);
  EXPECT_TRUE(sheet(form)->isAncestorOf(box<QPushButton>(&form, "BtnSave"))) << "the buttons come along";
}

TEST_F(ClientForms, aCustomerRegisteredFromTheSearchStandsInTheList) {
  addPlain("가람", "053-111-1111");
  frmClient form(idle.context);
  tests::show(form);
  addPlain("나래", "053-222-2222");
  idle.pickers.client = ClientChoice{2, "나래"};
  box(sheet(form), "TxtUName")->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "나래");
  EXPECT_EQ(sheet(form)->findChild<Spread*>()->activeRow(), 2);
}

TEST_F(ClientForms, theMapButtonWaitsForTheEditor) {
  addPlain("가람", "053-111-1111");
  pc.pc.process.setStarter([](const QString&, const QStringList&, const QString&) { return true; });
  tests::writeFile(pc.pc.paths.native("C:\\RWGAS\\MapEdit.exe"));
  frmClient form(idle.context);
  tests::show(form);
  auto* const image = box<QPushButton>(&form, "BtnImage");
  image->click();
  EXPECT_FALSE(image->isEnabled());
  pc.pc.settings.SaveSetting("약도", "환경설정", "MapEdit", "1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return image->isEnabled(); }, 3000));
}

// --- the search ---------------------------------------------------------------------------------------------

class ClientSearchForm : public ClientForms {
 protected:
  std::optional<ClientChoice> search(const QString& text, ClientSearchMode mode = ClientSearchMode::All) {
    return frmSearchClient(pc.session, text, mode, false,
                           [this](const QString& searched) {
                             return frmNewClient(pc.session, idle.pickers, searched).enter();
                           })
        .choose();
  }
};

TEST_F(ClientSearchForm, oneMatchComesBackAtOnceAndSeveralAreChosenByEnter) {
  addPlain("가람", "053-111-1234");
  addPlain("나래", "053-222-1234");
  ASSERT_TRUE(search("가람"));
  tests::whenModal<QDialog>([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmSearchClient");
    tests::keys({Qt::Key_Down, Qt::Key_Return});
  });
  const auto chosen = search("1234");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "나래");
  tests::whenModal<QDialog>([](QDialog&) { tests::key(Qt::Key_Escape); });
  EXPECT_FALSE(search("1234"));
}

TEST_F(ClientSearchForm, composingASyllableDoesNotSearch) {
  addPlain("가람", "053-111-1234");
  addPlain("가람2", "053-222-1234");
  tests::whenModal<QDialog>([](QDialog& dialog) {
    auto* const find = dialog.findChild<QLineEdit*>("TxtFind");
    find->setFocus();
    find->clear();
    tests::compose({"ㄱ", "가", "갈"}, "가");
    tests::compose({"ㄹ", "라"}, "람2");
    EXPECT_EQ(tests::focused(), "TxtFind");
    tests::key(Qt::Key_Return);
  });
  const auto chosen = search("1234");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "가람2") << "the only one closes the list";
}

TEST_F(ClientSearchForm, anUnknownNumberIsRegisteredOnTheSpotAndChosen) {
  idle.pickers.place = PostCodeChoice{"700-010", "대구 중구", ""};
  pc.prompts.expect("찾고자 하는 고객명/상호/전화번호가 없습니다!\n신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmNewClient");
    EXPECT_EQ(box(&dialog, "TxtTel")->text(), "053-123-4567");
    ASSERT_EQ(tests::focused(), "TxtName");
    tests::compose({"ㄱ"}, "가람");
    tests::grab(dialog, "frmNewClient");
    for (int i = 0; i < 20 && tests::focused() != "BtnSave"; ++i) tests::key(Qt::Key_Return);
    ASSERT_EQ(tests::focused(), "BtnSave");
    tests::key(Qt::Key_Return);
  });
  const auto chosen = search("0531234567");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "가람");
  EXPECT_EQ(ask("Select Tel From Client"), "053-123-4567");
}

TEST_F(ClientSearchForm, theQuickEntryKeepsWhatWasTypedAndStoresTheTelephoneWithItsDashes) {
  pc.prompts.expect("신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([this](QDialog& dialog) {
    pc.prompts.expect("버리시겠습니까?", false);
    box(&dialog, "TxtTel")->setFocus();
    tests::type("01012345678");
    tests::key(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    pc.prompts.expect("버리시겠습니까?", false);
    tests::key(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(tests::focused(), "TxtTel");
    tests::key(Qt::Key_S, Qt::AltModifier);  // the focus never leaves the box
  });
  ASSERT_TRUE(search("가람"));
  EXPECT_EQ(ask("Select Tel From Client"), "010-1234-5678");

  pc.prompts.expect("신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([](QDialog& entry) {
    tests::whenModal<QDialog>([](QDialog& list) {
      EXPECT_EQ(list.objectName(), "frmSearchClient");
      tests::key(Qt::Key_Escape);
    });
    EXPECT_EQ(entry.objectName(), "frmNewClient");
    tests::key(Qt::Key_Escape);  // nothing was typed into it: nothing to ask
  });
  EXPECT_FALSE(search("나래"));
}

// --- several hands ------------------------------------------------------------------------------------------

TEST_F(ClientForms, aCustomerDeletedElsewhereStaysInTheBoxesAsANewEntry) {
  addPlain("가람", "053-111-1111");
  addPlain("나래", "053-222-2222");
  frmClient form(idle.context);
  tests::show(form);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(tests::focused(), "TxtName");
  tests::type("x");
  pc.session.dbBasic.Execute("Delete * From Client Where Name = '가람'");
  pc.prompts.expect("변경하시겠습니까?");
  pc.prompts.expect("이미 삭제된 자료입니다!");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(tests::focused(), "TxtName");
  EXPECT_EQ(box(sheet(form), "TxtTel")->text(), "053-111-1111");
  EXPECT_FALSE(box<QPushButton>(&form, "BtnNew")->isEnabled()) << "a new entry now";
  pc.prompts.expect("버리시겠습니까?", false);
  form.close();
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(ask("Select Name From Client Where Tel = '053-111-1111'"), "x");
}

TEST_F(ClientForms, aPageIsTurnedOnlyWhenNothingTypedIsLost) {
  fillBooks();
  frmClient form(idle.context);
  tests::show(form);
  auto* const tabs = form.findChild<QTabWidget*>("TabClient");
  tests::key(Qt::Key_Return);
  tests::type("x");
  pc.prompts.expect("버리시겠습니까?", false);
  tests::key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "x");
  pc.prompts.expect("버리시겠습니까?");
  tests::key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 1);
  QApplication::processEvents();
  tests::key(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 0);
}

}  // namespace
