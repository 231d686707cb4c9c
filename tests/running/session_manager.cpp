// A desktop's session manager: prints the name under which programs reach it, then what they tell
// it, a line each. A line on its input asks all of them to agree to a log-out.

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

std::vector<SmsConn> aClients;
std::vector<IceConn> aConnections;

void Tell(const char* sWhat) {
  std::printf("%s\n", sWhat);
  std::fflush(stdout);
}

int TakeClient(SmsConn client, SmPointer, char* /*sEarlierId*/) {
  char* sId = SmsGenerateClientID(client);
  SmsRegisterClientReply(client, sId);
  std::free(sId);
  SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone,
                  False);  // every newcomer's first
  aClients.push_back(client);
  return 1;
}

void AllowInteraction(SmsConn client, SmPointer, int) {
  Tell("asks the user");
  SmsInteract(client);
}

void HearInteractionEnd(SmsConn client, SmPointer, int bCancel) {
  Tell(bCancel ? "refuses" : "has asked");
  if (bCancel) SmsShutdownCancelled(client);
}

void IgnoreSaveRequest(SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}

void StartSecondPhase(SmsConn client, SmPointer) {
  SmsSaveYourselfPhase2(client);
}

void CompleteSave(SmsConn client, SmPointer, int /*bSuccess*/) {
  SmsSaveComplete(client);
  Tell("saved");
}

void ForgetClient(SmsConn client, SmPointer, int iReasons, char** aReasons) {
  SmFreeReasons(iReasons, aReasons);
  std::erase(aClients, client);
  Tell("gone");
}

void DropProperties(SmsConn, SmPointer, int iCount, SmProp** aProperties) {
  for (int i = 0; i < iCount; ++i) SmFreeProperty(aProperties[i]);
  std::free(aProperties);
}

void DropNames(SmsConn, SmPointer, int iCount, char** aNames) {
  for (int i = 0; i < iCount; ++i) std::free(aNames[i]);
  std::free(aNames);
}

void SendNoProperties(SmsConn client, SmPointer) {
  SmsReturnProperties(client, 0, nullptr);
}

Status GreetClient(SmsConn, SmPointer, unsigned long* pMask, SmsCallbacks* pCallbacks, char**) {
  *pMask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
           SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
           SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
           SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  pCallbacks->register_client.callback = TakeClient;
  pCallbacks->interact_request.callback = AllowInteraction;
  pCallbacks->interact_done.callback = HearInteractionEnd;
  pCallbacks->save_yourself_request.callback = IgnoreSaveRequest;
  pCallbacks->save_yourself_phase2_request.callback = StartSecondPhase;
  pCallbacks->save_yourself_done.callback = CompleteSave;
  pCallbacks->close_connection.callback = ForgetClient;
  pCallbacks->set_properties.callback = DropProperties;
  pCallbacks->delete_properties.callback = DropNames;
  pCallbacks->get_properties.callback = SendNoProperties;
  return 1;
}

/// Whoever reaches the socket of this test is welcome.
Bool LetIn(char*) {
  return True;
}

void Accept(IceListenObj listener) {
  IceAcceptStatus status{};
  IceConn connection = IceAcceptConnection(listener, &status);
  if (connection != nullptr) aConnections.push_back(connection);
}

void Serve(IceConn connection) {
  if (IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesIOError) return;
  std::erase(aConnections, connection);
  Tell("gone");
}

void AskForLogout() {
  for (const SmsConn client : aClients) {
    SmsSaveYourself(client, SmSaveBoth, True, SmInteractStyleAny, False);
  }
}

void SurviveBrokenConnection(IceConn) {}

}  // namespace

int main() {
  char error[256] = {};
  int iListeners = 0;
  IceListenObj* aListeners = nullptr;
  IceSetIOErrorHandler(SurviveBrokenConnection);
  if (!SmsInitialize("glidetrak", "1", GreetClient, nullptr, LetIn, sizeof error, error) ||
      !IceListenForConnections(&iListeners, &aListeners, sizeof error, error)) {
    std::fprintf(stderr, "%s\n", error);
    return 1;
  }
  for (int i = 0; i < iListeners; ++i) IceSetHostBasedAuthProc(aListeners[i], LetIn);
  Tell(IceComposeNetworkIdList(iListeners, aListeners));
  for (;;) {
    const std::vector<IceConn> aNow = aConnections;
    std::vector<pollfd> aWaits{{STDIN_FILENO, POLLIN, 0}};
    for (int i = 0; i < iListeners; ++i) {
      aWaits.push_back({IceGetListenConnectionNumber(aListeners[i]), POLLIN, 0});
    }
    for (const IceConn connection : aNow) {
      aWaits.push_back({IceConnectionNumber(connection), POLLIN, 0});
    }
    if (poll(aWaits.data(), aWaits.size(), -1) < 0) return 1;
    char line[64];
    if (aWaits[0].revents != 0) {
      if (read(STDIN_FILENO, line, sizeof line) <= 0) break;
      AskForLogout();
    }
    for (int i = 0; i < iListeners; ++i) {
      if (aWaits[static_cast<size_t>(i) + 1].revents != 0) Accept(aListeners[i]);
    }
    for (size_t i = 0; i < aNow.size(); ++i) {
      if (aWaits[i + 1 + static_cast<size_t>(iListeners)].revents != 0) Serve(aNow[i]);
    }
  }
  IceFreeListenObjs(iListeners, aListeners);
  return 0;
}
