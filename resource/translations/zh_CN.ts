<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
  <context>
    <name>TutorialIndicator</name>
    <message>
      <source>Next</source>
      <translation>下一步</translation>
    </message>
    <message>
      <source>Yes</source>
      <translation>是</translation>
    </message>
    <message>
      <source>No</source>
      <translation>否</translation>
    </message>
  </context>
  <context>
    <name>TutorialList</name>
    <message>
      <source>#1</source>
      <translation>1</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep1</name>
    <message>
      <source>#1</source>
      <translation>欢迎！</translation>
    </message>
  </context>
</TS>
