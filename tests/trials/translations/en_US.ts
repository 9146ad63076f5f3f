<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
  <context>
    <name>Action</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Enemies”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Add…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose “Spark” in “Skill”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Tick “Only once in a battle”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>ApplicationWindow</name>
    <message>
      <source>#1</source>
      <translation>This trial looks at the editor as a whole. Click “Next”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Rest the mouse on “Grid” for a moment. A small text tells what the button is for.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Shall the village get a pond in its corner?</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Water”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click here. The pond is one cell wide.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>AudioSelector</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Double-click the first map. Its properties open.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Sound…”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Cave”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Type 35 into “Volume”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>BattleConditions</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Troops”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Conditions…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Tick “From turn”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 3 into “From turn”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>BattleTest</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Troops”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Battle test…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Add”, then “Next”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 12 into “Level”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>ChangeMaximum</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Change maximum…”. There will be room for more actors.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Type 6 into “Number of entries”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Copying</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>The copy is done, and the sample game is open. Click “Next”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>DatabaseMain</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Items”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Tonic”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Type 25 into “Price”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Choose “Key item”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>DropItem</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Enemies”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Add…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Bread”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Choose “Sometimes” in “How often”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Effects</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Items”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Add…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose “MP”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 25 into “Points”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Encounter</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Double-click the first map. Its properties open.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Add…”. They will lie in wait on this map.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Two slimes”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Type 7 into “How often”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>EventCommand</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click this cell. A new event is made here.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Double-click the row with the +. The commands open.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Double-click “Show message”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Choose “Top” in “Position”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Type the words of the message.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>EventCommandSelect</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click this cell. A new event is made here.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Double-click the row with the +. The commands open.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click the tab “Flow”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Double-click “Exit event”. It has nothing to ask, so it goes into the list at once.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>EventEditorMain</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click this cell. A new event is made here.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Type a name for the event and click “Next”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Tick “Keeps its direction”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Choose “when the player steps on it” in “Starts”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>EventSearcher</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Find events”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Choose “Switch” in “Look for”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Choose “Elder asked for help” in “Which”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click the first event that was found.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Show on the map”. The map shows where it is.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Double-click the elder, who was found.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Tick “Keeps its direction”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>FileDialog</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Double-click the first map. Its properties open.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Type another name and press Enter. It will not be saved.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click the project in the first row.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Open”. The map has its old name again.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Type 20 into “Height”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>ImageSelector</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Double-click the first map. Its properties open.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the picture beside “Tile set”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Winter”. It snows in the picture.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Location</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Quick event: passage…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Choose…”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Forest path”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click the middle of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MainWindow</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Water”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Rectangle”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Press the button here and drag to the lower right. A pond is drawn.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Undo”. The pond is gone.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Redo”. It is back.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MainWindowClient_mapEditorView</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Sand”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Press the left button here. A cell of sand appears.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click this cell, too.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Right-click the map here. Its menu opens.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. The menu closes, and the project is saved.</translation>
    </message>
  </context>
  <context>
    <name>MapEditTreeBox</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Forest path”. The map view shows it.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click “Forest path”. Its properties open.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Type another name, such as “Hillside”, and press Enter.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MapLoader</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Right-click “Village”. A menu opens.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Load a sample map…”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Snow field”. You see it on the right.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “OK”. The map joins the others.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MapProperties</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Double-click the first map. Its properties open.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Type 30 into “Width”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Choose “Forest” in “Music”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Take the tick from “Show the name on arrival”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Menu</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Right-click “Oasis”. A menu opens.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “New map…”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Type a name for the map, such as “Shore”, and press Enter.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Merchandise</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Shop”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Double-click the merchant.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Double-click the shop, the second command.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Double-click the first row.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Choose “Another one”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Type 99 into “Price”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MovementCommand</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click this cell. A new event is made here.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Choose “Walks a route” in “Movement”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Route…”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Wait…”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Type 90 into “Frames”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MovementPreview</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click the cat. Its event opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Route…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Up”, then “Next”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Preview…”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Close”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>MovementRoute</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click this cell. A new event is made here.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Choose “Walks a route” in “Movement”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Route…”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Down”, then “Next”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Tick “Skip what is not possible”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>NewProject</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Type a name for your game and click “Next”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>QuickBase</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Quick event: resting place…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose “Cat” in “Picture”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>QuickInn</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Quick event: inn…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Type 15 into “Price of a night”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>QuickTransfer</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Quick event: passage…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose “Forest path” in “Leads to”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 4 into “Column, row”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>QuickTreasure</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Quick event: treasure…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Type 50 into “How much”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>SkillsToLearn</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Classes”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Double-click the first row of “Skills to learn”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Shield wall”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 6 into “Learned at level”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>TextPreview</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Events”. Now the map shows its events.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Double-click the sign. Its event opens.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Double-click the message.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose “Dim” in “Background”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Preview…”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Close”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>TitleCommandWindow</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “System”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Commands of the title screen…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Add”, then “Next”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Choose “Credits” in “Command”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>Traits</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “Weapons”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Add…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click the tab “Each turn”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type 7 into “Value”. So much comes back each turn.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
  <context>
    <name>VariableSelector</name>
    <message>
      <source>#1</source>
      <translation>Click “New”.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Click “OK”. The project gets the data of the sample game.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>The files are being copied. Please wait.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click the tab “System”.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Names of switches and variables…”.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Click “Herb found”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Type a name of at least five letters.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Save”. That was all.</translation>
    </message>
  </context>
</TS>
