<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
  <context>
    <name>TutorialIndicator</name>
    <message>
      <source>Next</source>
      <translation>Next</translation>
    </message>
    <message>
      <source>Yes</source>
      <translation>Yes</translation>
    </message>
    <message>
      <source>No</source>
      <translation>No</translation>
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
      <translation>Welcome!</translation>
    </message>
  </context>
</TS>
