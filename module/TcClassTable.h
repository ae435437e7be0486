// The run-time classes of the module: registered in one order when it
// starts, deleted in another when it stops.
#pragma once

namespace tc {

// The classes of the module, registered for as long as the object lives.
class TcClassRegistration
{
public:
  // rxInit of every class, parents before children. A failure (313 for a
  // class registered already) deletes what this registered and goes on to
  // the caller.
  TcClassRegistration();
  // Deletes, without a word, whatever unregisterAll left.
  ~TcClassRegistration();
  TcClassRegistration(const TcClassRegistration&) = delete;
  TcClassRegistration& operator=(const TcClassRegistration&) = delete;

  // Deletes the class descriptions in the order of deletion, which differs
  // on purpose from that of registration. A null description on the way
  // throws OdError 255 and ends the deletion there.
  void unregisterAll();

  // Whether the first class of the order of deletion is registered: what
  // the module checks before it stops.
  static bool firstOfDeletionRegistered();
};

} // namespace tc
