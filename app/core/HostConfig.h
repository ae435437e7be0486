// The host's configuration tree and its XML file, written back after every
// change by replacing the file atomically.
#pragma once

#include "app/core/HostConfigNode.h"

#include <QString>

#include <functional>

class HostConfig
{
public:
  // A change of a value (`value` null when it was deleted), or of the tree's
  // shape (`name` empty).
  using ChangeHandler = std::function<void(HostConfigNode* folder, const std::string& name, const CRkVariant* value)>;
  // Messages for the user: a broken file, a failed save.
  using MessageHandler = std::function<void(const OdString& message)>;

  explicit HostConfig(QString filePath);
  ~HostConfig();
  HostConfig(const HostConfig&) = delete;
  HostConfig& operator=(const HostConfig&) = delete;

  // Reads the file. A missing file gives an empty tree. A file that cannot be
  // read or parsed is moved aside as "<file>.broken" (never overwritten), the
  // user is told, and the tree starts empty. False in that last case.
  bool load();
  // Writes the whole tree: a temporary file beside the target, renamed over
  // it. False, with a message, when that fails; the file is then untouched.
  bool save();

  HostConfigNode* root() { return m_root.get(); }
  const QString& filePath() const { return m_filePath; }
  // The folder at `path` ("A/B"); the root for an empty path.
  HostConfigNode* folder(const std::string& path, bool create);
  // Where the broken file of the last load was put, or empty.
  const QString& brokenFileCopy() const { return m_brokenCopy; }

  void setChangeHandler(ChangeHandler handler) { m_onChange = std::move(handler); }
  void setMessageHandler(MessageHandler handler) { m_onMessage = std::move(handler); }

  // While a Batch lives, changes are collected and the file is written once
  // at its end.
  class Batch
  {
  public:
    explicit Batch(HostConfig& config) : m_config(config) { ++m_config.m_batchDepth; }
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

  private:
    HostConfig& m_config;
  };

  // The XML text of the tree, and the reverse (false with `error` on a
  // malformed text; the tree is then left empty).
  QByteArray toXml() const;
  bool fromXml(const QByteArray& xml, QString* error);

private:
  friend class HostConfigNode;
  void nodeChanged(HostConfigNode* node, const std::string& name, const CRkVariant* value);
  void tell(const OdString& message);
  QString moveAside();

  QString m_filePath;
  CRkPtr<HostConfigNode> m_root;
  ChangeHandler m_onChange;
  MessageHandler m_onMessage;
  int m_batchDepth = 0;
  bool m_dirty = false;
  // After a file could not be read nor moved aside, saving would destroy
  // it: the session then keeps its changes in memory only.
  bool m_saveDisabled = false;
  QString m_lastSaveError; // told once, not at every change
  QString m_brokenCopy;
};
