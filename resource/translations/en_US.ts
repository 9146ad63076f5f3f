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
    <name>TutorialManager</name>
    <message>
      <source>unterminated "...": </source>
      <translation>unterminated "...": </translation>
    </message>
    <message>
      <source>not matched %1...%2: </source>
      <translation>not matched %1...%2: </translation>
    </message>
    <message>
      <source>not found %1 or %2: </source>
      <translation>not found %1 or %2: </translation>
    </message>
    <message>
      <source>unable to parse as string: </source>
      <translation>unable to parse as string: </translation>
    </message>
    <message>
      <source>not closed %1: </source>
      <translation>not closed %1: </translation>
    </message>
    <message>
      <source>Failed to save translation.</source>
      <translation>Failed to save translation.</translation>
    </message>
  </context>
  <context>
    <name>TutorialEditor::Manager</name>
    <message>
      <source>Failed to save.</source>
      <translation>Failed to save.</translation>
    </message>
    <message>
      <source>Tutorial not loaded yet.</source>
      <translation>Tutorial not loaded yet.</translation>
    </message>
    <message>
      <source>folder</source>
      <translation>folder</translation>
    </message>
    <message>
      <source>item</source>
      <translation>item</translation>
    </message>
    <message>
      <source>No CR/NF found: %1</source>
      <translation>No CR/NF found: %1</translation>
    </message>
    <message>
      <source>closeMarker(%1) not found (l:%3): %2</source>
      <translation>closeMarker(%1) not found (l:%3): %2</translation>
    </message>
    <message>
      <source>qsTr/QT_TRANSLATE_NOOP not closed: %1</source>
      <translation>qsTr/QT_TRANSLATE_NOOP not closed: %1</translation>
    </message>
  </context>
  <context>
    <name>TutorialEditor::Model</name>
    <message>
      <source>No CR/NF found: %1</source>
      <translation>No CR/NF found: %1</translation>
    </message>
    <message>
      <source>closeMarker(%1) not found (l:%3): %2</source>
      <translation>closeMarker(%1) not found (l:%3): %2</translation>
    </message>
    <message>
      <source>qsTr/QT_TRANSLATE_NOOP not closed: %1</source>
      <translation>qsTr/QT_TRANSLATE_NOOP not closed: %1</translation>
    </message>
  </context>
  <context>
    <name>UndoRedo</name>
    <message>
      <source>&amp;Undo</source>
      <translation>&amp;Undo</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>&amp;Redo</translation>
    </message>
  </context>
  <context>
    <name>TutorialList</name>
    <message>
      <source>#1</source>
      <translation>Your first map</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>A person on the map</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Doors and treasure chests</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Event pages</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>A conversation with choices</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>The hero and the database</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>A town with a shop and an inn</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Traveling between maps</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Switches and variables</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Music and backdrops</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Guards on patrol</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>A walk through the database</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Items, weapons and armor</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Enemies and random encounters</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Classes, skills and traits</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>The boss battle</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Troops and battle events</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>A cut scene</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Finishing touches</translation>
    </message>
  </context>
  <context>
    <name>Tutorial</name>
    <message>
      <source>#1</source>
      <translation>Mila</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Slash</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Cloth cap</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>A cap that keeps the sun off.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Traveler</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>The lamp of Amberfield has burned for a century.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Last night, it went out.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Slime</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Herb</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Restores 30 HP to one ally.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Sign</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Amberfield</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Travelers are welcome.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Forest path</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Strike</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>A strong blow to one enemy.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation> strikes hard!</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Fainted</translation>
    </message>
    <message>
      <source>#19</source>
      <translation> has fainted!</translation>
    </message>
    <message>
      <source>#20</source>
      <translation> has been defeated!</translation>
    </message>
    <message>
      <source>#21</source>
      <translation> wakes up!</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Game started</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Meadow</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Autumn</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Winter</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Desert</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Night</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Coast</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>One slime</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Wooden sword</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>A sword for practice. Better than nothing.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Pip</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Good morning, Mila!</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>The lamp is out. It was so dark last night!</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Tonic</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Wakes up an ally who has fainted.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Door</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Way out</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Treasure chest</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Mila found a herb!</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Mila's house</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>A herb! Keep it for the road.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>The chest is empty.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Herb found</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Elder</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Somebody has taken our Dawn Lamp.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Will you look for it?</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Yes</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Not yet</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Thank you, Mila. Ask around the village first.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Come back when you are ready.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>We are counting on you.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Elder asked for help</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Toma</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Travel cloak</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Warm, light and waterproof.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Guardian</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Looking for the lamp? Then I'm coming with you.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Bread</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Restores 10 HP to one ally. Freshly baked.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Shop door</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Inn door</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Bruno</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Welcome! Have a look around.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Greta</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>A bed for the night? It's on the house.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Stay</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Leave</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Good morning! Did you sleep well?</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Come back any time.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Shop</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Inn</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Hunting knife</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Short and quick.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>To the forest</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>To the village</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>To the mine</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Back to the forest</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>Old mine. Closed. Keep out!</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Mine entrance</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Lever</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>There is a rusty lever.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Pull it?</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>Pull</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>Leave it</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>Somewhere, a gate opens.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>The lever will not move any more.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Gate</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>The gate is shut.</translation>
    </message>
    <message>
      <source>#90</source>
      <translation>Old mine</translation>
    </message>
    <message>
      <source>#91</source>
      <translation>Gate open</translation>
    </message>
    <message>
      <source>#92</source>
      <translation>Sparkle</translation>
    </message>
    <message>
      <source>#93</source>
      <translation>Spring</translation>
    </message>
    <message>
      <source>#94</source>
      <translation>You hear water and birds.</translation>
    </message>
    <message>
      <source>#95</source>
      <translation>Guard</translation>
    </message>
    <message>
      <source>#96</source>
      <translation>Halt! Who goes there?</translation>
    </message>
    <message>
      <source>#97</source>
      <translation>Take care on the forest path.</translation>
    </message>
    <message>
      <source>#98</source>
      <translation>Second guard</translation>
    </message>
    <message>
      <source>#99</source>
      <translation>The mine is dangerous. Come at level 5, and save.</translation>
    </message>
    <message>
      <source>#100</source>
      <translation>Sena</translation>
    </message>
    <message>
      <source>#101</source>
      <translation>Sage</translation>
    </message>
    <message>
      <source>#102</source>
      <translation>I study old lamps. Take me along!</translation>
    </message>
    <message>
      <source>#103</source>
      <translation>Leather vest</translation>
    </message>
    <message>
      <source>#104</source>
      <translation>Tough, but easy to move in.</translation>
    </message>
    <message>
      <source>#105</source>
      <translation>Round shield</translation>
    </message>
    <message>
      <source>#106</source>
      <translation>Stops blows and small stones.</translation>
    </message>
    <message>
      <source>#107</source>
      <translation>Antidote</translation>
    </message>
    <message>
      <source>#108</source>
      <translation>Cures poison.</translation>
    </message>
    <message>
      <source>#109</source>
      <translation>Torch</translation>
    </message>
    <message>
      <source>#110</source>
      <translation>Of no use by day, but Bruno buys it.</translation>
    </message>
    <message>
      <source>#111</source>
      <translation>Poisoned</translation>
    </message>
    <message>
      <source>#112</source>
      <translation> is poisoned!</translation>
    </message>
    <message>
      <source>#113</source>
      <translation> has been poisoned!</translation>
    </message>
    <message>
      <source>#114</source>
      <translation> suffers from the poison.</translation>
    </message>
    <message>
      <source>#115</source>
      <translation> is free of the poison!</translation>
    </message>
    <message>
      <source>#116</source>
      <translation>Iron sword</translation>
    </message>
    <message>
      <source>#117</source>
      <translation>Heavy, with a sharp edge.</translation>
    </message>
    <message>
      <source>#118</source>
      <translation>Oak staff</translation>
    </message>
    <message>
      <source>#119</source>
      <translation>Helps to gather magic.</translation>
    </message>
    <message>
      <source>#120</source>
      <translation>Bite</translation>
    </message>
    <message>
      <source>#121</source>
      <translation>Cave bat</translation>
    </message>
    <message>
      <source>#122</source>
      <translation>Giant rat</translation>
    </message>
    <message>
      <source>#123</source>
      <translation>Poison cap</translation>
    </message>
    <message>
      <source>#124</source>
      <translation>Two slimes</translation>
    </message>
    <message>
      <source>#125</source>
      <translation>Two bats</translation>
    </message>
    <message>
      <source>#126</source>
      <translation>Rat and mushroom</translation>
    </message>
    <message>
      <source>#127</source>
      <translation>Shield light</translation>
    </message>
    <message>
      <source>#128</source>
      <translation>Heal</translation>
    </message>
    <message>
      <source>#129</source>
      <translation>Restores 40 HP to one ally.</translation>
    </message>
    <message>
      <source>#130</source>
      <translation> calls a gentle light!</translation>
    </message>
    <message>
      <source>#131</source>
      <translation>Spark</translation>
    </message>
    <message>
      <source>#132</source>
      <translation>Hits one enemy with a small flame.</translation>
    </message>
    <message>
      <source>#133</source>
      <translation> throws a spark!</translation>
    </message>
    <message>
      <source>#134</source>
      <translation>Shield wall</translation>
    </message>
    <message>
      <source>#135</source>
      <translation>Protects all allies for one turn.</translation>
    </message>
    <message>
      <source>#136</source>
      <translation> raises the shield!</translation>
    </message>
    <message>
      <source>#137</source>
      <translation>Poison spores</translation>
    </message>
    <message>
      <source>#138</source>
      <translation>Poisons one enemy.</translation>
    </message>
    <message>
      <source>#139</source>
      <translation> scatters spores!</translation>
    </message>
    <message>
      <source>#140</source>
      <translation>Protected</translation>
    </message>
    <message>
      <source>#141</source>
      <translation> is protected!</translation>
    </message>
    <message>
      <source>#142</source>
      <translation> is no longer protected.</translation>
    </message>
    <message>
      <source>#143</source>
      <translation>Stone warden</translation>
    </message>
    <message>
      <source>#144</source>
      <translation>Dawn Lamp</translation>
    </message>
    <message>
      <source>#145</source>
      <translation>The lamp of Amberfield. It is warm to the touch.</translation>
    </message>
    <message>
      <source>#146</source>
      <translation>The light woke me. Now it is mine.</translation>
    </message>
    <message>
      <source>#147</source>
      <translation>It belongs to the whole village!</translation>
    </message>
    <message>
      <source>#148</source>
      <translation>The Dawn Lamp shines again!</translation>
    </message>
    <message>
      <source>#149</source>
      <translation>Only stones are left.</translation>
    </message>
    <message>
      <source>#150</source>
      <translation>Rockfall</translation>
    </message>
    <message>
      <source>#151</source>
      <translation>Stones hit all enemies.</translation>
    </message>
    <message>
      <source>#152</source>
      <translation> makes the ceiling shake!</translation>
    </message>
    <message>
      <source>#153</source>
      <translation>Warden defeated</translation>
    </message>
    <message>
      <source>#154</source>
      <translation>The stone warden</translation>
    </message>
    <message>
      <source>#155</source>
      <translation>Crystal beetle</translation>
    </message>
    <message>
      <source>#156</source>
      <translation>Asleep</translation>
    </message>
    <message>
      <source>#157</source>
      <translation> falls asleep!</translation>
    </message>
    <message>
      <source>#158</source>
      <translation> has been put to sleep!</translation>
    </message>
    <message>
      <source>#159</source>
      <translation> is sleeping.</translation>
    </message>
    <message>
      <source>#160</source>
      <translation> wakes with a start!</translation>
    </message>
    <message>
      <source>#161</source>
      <translation>Beetle and bat</translation>
    </message>
    <message>
      <source>#162</source>
      <translation>And so the lamp burns once more in Amberfield.</translation>
    </message>
    <message>
      <source>#163</source>
      <translation>The end. Thank you for playing!</translation>
    </message>
    <message>
      <source>#164</source>
      <translation>To the hilltop</translation>
    </message>
    <message>
      <source>#165</source>
      <translation>Back to the village</translation>
    </message>
    <message>
      <source>#166</source>
      <translation>Lamp scene</translation>
    </message>
    <message>
      <source>#167</source>
      <translation>Look, you can see the whole village from here.</translation>
    </message>
    <message>
      <source>#168</source>
      <translation>It will be bright again.</translation>
    </message>
    <message>
      <source>#169</source>
      <translation>You have brought the light home.</translation>
    </message>
    <message>
      <source>#170</source>
      <translation>Hilltop</translation>
    </message>
    <message>
      <source>#171</source>
      <translation>Lamp returned</translation>
    </message>
    <message>
      <source>#172</source>
      <translation>Beginning</translation>
    </message>
    <message>
      <source>#173</source>
      <translation>Mila found a tonic!</translation>
    </message>
    <message>
      <source>#174</source>
      <translation>You found it! Take it up the hill in the west.</translation>
    </message>
    <message>
      <source>#175</source>
      <translation>But last night I saw a light near the old mine.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep1</name>
    <message>
      <source>#1</source>
      <translation>Welcome! In this lesson you draw your first map.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>An arrow will show where to act, a picture how. Where you see “Next”, read, then click it.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>A game begins with a project. Click “New”.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Type a name for your game here, then click “Next”.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Click “OK”. Your game gets a folder of its own.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>The files are being copied. Wait a moment: the lesson goes on by itself.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>This is the map view. It shows the open map, a village. Players will walk on what you draw.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>These are the tiles that maps are put together from. Tabs sort them by what they show.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>The drawing tools go from “Pencil” to “Eraser”. You will try them all on a map of your own.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>All maps of your game are in this list. Four came with the project. The blue one is open.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Now for a map of your own. The picture above this text means a right click: it opens a menu.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Right-click “Oasis”, the last map in the list. A menu opens.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click “New map…”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Type a name for your map, such as Meadow, and press Enter. The new map opens at once.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>This is your map. So far it is plain grass. You will give it tall grass, a pond and a tree.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click “Tall grass” in the list of tiles.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “Fill”. This tool covers a whole area at once.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click the map. Tall grass covers all of it.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “Water”.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “Rectangle”. It draws areas with straight edges.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Press the mouse button here, drag to the lower right and let go. That is your pond.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “Sand”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Click “Ellipse”. It draws round areas in the same way.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Press here and drag to the lower right again. A round patch of sand appears.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>A map has three layers. Tiles of a higher one lie over the others, so trees go above the ground.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click “Layer 2”. What you draw from now on lies above the ground.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click the “Nature” tab. It holds trees, bushes and flowers.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Tree”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Click “Pencil”. It draws tile by tile.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click here to plant a tree.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “Eraser”. It takes tiles away from the layer that you work on.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click the tree. It is gone, but the grass below it stays.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Click “Undo” to bring the tree back. Other strokes can be taken back in the same way.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “Zoom in” to see your map more closely.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click “Full size” to go back to the normal view.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>“Map” is the mode for drawing. People are made in “Events”, which lesson 2 uses.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Well drawn! Next you change the properties of a map and add more maps.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Double-click your map in the list. Its properties open.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Here, type the name that players will see, and press Enter.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>The list of tiles has a menu of its own. With it you can give all tiles another look.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Right-click the list of tiles.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Change the tile set…”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click the picture beside “Tile set”.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “Autumn”. The picture on the right shows how it looks.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Your map wears autumn colors now. Click “Bush”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>You still hold the eraser. Click “Pencil” again.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Press the left mouse button here. The pencil draws the moment you press.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Right-click the list of tiles once more, to see how to leave a menu without choosing.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Click “Flowers”, outside the menu. The menu closes and the tile is chosen.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Press here, drag to the right and let go. Flowers grow all along the way.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Village”, the first map in the list. It opens in the map view.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Right-click this map. Its menu opens.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click “Map properties…”. It opens the same window as a double click.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Type a new name for the village here and press Enter.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Right-click your own map. “Delete map” would remove it with all that you drew. Leave it.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Better keep your map. Click “Oasis”: the menu closes and that map opens.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Click “Load a sample map…”. It adds a map that is already drawn.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>One map is chosen already. Click “OK” to add it to your game.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>It is a map like yours. “Width” and “Height” in its properties make it larger or smaller.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Click “Load a sample map…”.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>This time double-click “Snow field”. That chooses the map and adds it at once.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Click “Harbor”. You can go from map to map like this at any time.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>The map view has a menu, too. It works on the map that you see.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Right-click the map.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Click “Map properties…”.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Every map has its own tile set. Click the picture to see which one the harbor uses.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>It is “Coast”, which suits a harbor. Click “OK” to keep it.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Right-click the map once more.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>You have enough maps for now. Click “Cancel”: nothing is added.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Click “Fir tree”.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Press the left mouse button here. The harbor gets one more fir tree.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Right-click the map. You need nothing from this menu, so the next click goes elsewhere.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “Grid”. The menu closes, and lines show where each tile begins.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click your own map to go back to it.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Click “Load a sample map…” once more.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>On the left are the maps to choose from, for any game of yours. Click “Cancel” for now.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Click “Save”. Your project is written into its folder.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>Done! You can draw a map, change its properties and add more maps.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Lesson 2 puts the first person on a map. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep2</name>
    <message>
      <source>#1</source>
      <translation>In this lesson you put a boy on the map who speaks.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with the village of this course? “No” lets you open one of yours.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The village of Amberfield will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The village is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>The boy will stand here. He is called Pip. Players walk up to him and talk to him.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events”. People on a map are events, and in this mode you make them.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Right-click this cell. A menu opens.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “New event…” to make Pip.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>This window is all about one event: how it looks, and what it does.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Every event has a name. Players never see it; it helps you to find the event again.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>An event can wait for something. Pip waits for nothing, so he is always there.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click the empty field below “Picture” to choose how Pip looks.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “Child”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “OK” to take this picture.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>“Stays in place” means that Pip does not walk. A later lesson lets people walk.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “Moves its feet while standing”: it makes Pip look alive. Then click “Next”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>“When examined” means: the player stands before Pip and presses Enter.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “OK”. Pip takes his place on the map.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>There he stands, but he has nothing to say yet. Double-click him.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Here you see what an event does, line by line. “+” is the place for a new command.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Double-click “+” to add a command.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>All commands are in this window, on tabs. For what people say there is “Message”.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>“Show message” is selected already. Click “OK”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Type what Pip says, such as Good morning, Mila! Then click “Next”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>A name in “Speaker” would appear above the text. The field can also stay empty.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Preview…” to see what the player will see.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>This is how your message looks in the game. Click “Close”.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “OK” to keep the message.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Your message is in the list now. It is the first thing that happens when Pip is talked to.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Double-click the new “+”. Pip has one thing more to say.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Type some news, such as The lamp is out! Then click “Next”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click “Apply”. It keeps what you have done, and the window stays open. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “OK” to go back to the map.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Double-click Pip again. Whatever an event does can be changed at any time.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Pip's news is a surprise. You now look over his words and show the surprise.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Double-click the first message. This takes you back to what you typed.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Here you can correct the text. What you change counts once you click “OK”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>A message that is selected can be copied with Ctrl+C, for another event, too.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>A right click on a command opens a menu for copying, pasting and deleting.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>“+” has many more commands than messages. One of them shows how the player feels.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Double-click “+” below the messages.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click the “Scene” tab. Its commands change what is seen on the map.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Click “Show balloon”. It shows above a head what someone feels.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>The balloon comes up above the player, who hears the news.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>“Exclamation” is right for a surprise. This list has balloons for other feelings, too.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Click “OK” to add the balloon.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Commands run from top to bottom: first Pip speaks, then the balloon comes up.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>“Cancel” would drop whatever you have changed since you opened this window.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>You want to keep it all: click “OK”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “Map”. Events are hidden while you draw; Pip is still in his place.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click “Save” to write Pip and his words into the project's folder.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Done! You can make people who speak. “Play” in the tool bar lets you meet Pip in the game.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Lesson 3 makes a door and treasure chests. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep3</name>
    <message>
      <source>#1</source>
      <translation>In this lesson a house gets a door and treasure chests.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project for this lesson? “No” lets you go on in one of yours, such as lesson 2's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The village will be in it, and a room that nobody can get into yet.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Village and room are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>All maps of the game are listed here. Click “Amberfield”, the village.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>This is Mila's house. Its door is only drawn: players can walk up to it, but not in.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>The room behind the door is a map of its own: “Mila's house”. A passage will lead there.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Events”. Doors and chests are events, like Pip on the road.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Right-click the drawn door. This marks the cell; the menu lists what can go there. Click “Next”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Click “Passage”. It is a quick event: ready-made, so that you only fill in what is missing.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Where does the door lead? Choose “Mila's house”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click “Choose…” to show on the map where the player comes out.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click this cell: the player comes in here, right above the doorstep. Then click “Next”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Every cell has a column and a row. These are the numbers of the one that you clicked.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “OK”. The door is in its place, and whoever walks against it gets into the house.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Now the other side. Click “Mila's house” to open this map.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>A passage goes one way only. Right-click this cell for the way back. Then click “Next”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Click “Passage” again. It goes into the marked cell.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Choose “Amberfield”: the way out leads into the village.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>A place can be typed as well. Type 5, the column of the door. Then click “Next”.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Type 7, one below the door, and press Enter. On the door, the player would go in again.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>It looks like a second door. Double-click it: a quick event can be changed like any other.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>The quick event has named it “Passage”. You can type a better name, such as Way out.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>All that the quick event has written is this command: it takes the player to the village.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>“Touched by the player” means that walking there is enough. Nobody has to press a key.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>No conditions are set here, as with Pip: the way out is always there.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>A passage is always the same, so it has one page. Events that change, like chests, have more.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>The map shows a door here already. Click this picture to take it away.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “People”: “None” is chosen there, at the top. Then click “Next”.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>The field is empty now. Nothing is drawn on the cell, but the passage works as before.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Had you only tried something out, “Cancel” would forget it. This time “OK” is right.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>The house is open, but empty. Right-click this cell for a first chest. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “Treasure”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Choose “Item”. A chest can hold gold, a weapon or armor, too. Then click “Next”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>“Herb” is chosen already: it gives back HP when it is used.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click “OK” to put the chest there.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>The chest gives its herb only once. Right-click this cell for another one. Then click “Next”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “Treasure” again.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Choose “Item” here, too.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Choose “Tonic”. All items of the database are in this list.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>The chest tells players what they find. You need not write a message for that.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Should the house also have a crystal where the party can rest and save the game?</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>All right. “Resting place” in the tool bar is there when you want one elsewhere.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Right-click this cell: here the crystal is in nobody's way. Then click “Next”.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Click “Resting place”.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Nothing else is needed here. Click “OK” to put the crystal there.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Amberfield”. The game begins there, so look once more at the door from outside.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Click “Save” to keep the door, the way out and the chests. Then click “Next”.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click “Play” and see for yourself that the door leads into the house.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Begin a new game and walk into the door with the arrow keys. Then click “Next”.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Try each chest twice with Enter, and leave the house. Then press Esc until you are back.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Done! Doors and chests are quickly made. In lesson 4, the herb changes what Pip says.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep4</name>
    <message>
      <source>#1</source>
      <translation>In this lesson Pip changes his words once a herb is found.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with Pip and the chests? “No” opens one of yours, such as lesson 3's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Pip and Mila's house with its chests will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Village and house are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Amberfield” in the list of maps. The lesson begins in the village.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events” to get at people, chests and the like.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>This event tells the story when the game begins. Double-click it to see how it works.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>It has two pages, 1 and 2. Each has its own picture, conditions and commands.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>“By itself” means that page 1 starts without anybody asking. It tells the story.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>This command comes after the story. Right-click it.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Edit command…”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>A switch is ON or OFF, and the game remembers it. Here “Game started” is turned ON.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click the tab with the 2 to see its second page.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Page 2 waits for the same switch. It counts as soon as “Game started” is ON.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Page 2 does nothing. That is why the story is told only once.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Remember: of all pages whose conditions hold, the one with the highest number counts.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>You will do the same with Pip. Click “OK”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>The herb lies in a chest indoors. Click “Mila's house” in the list of maps.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Double-click the chest with the herb.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>The chest has two pages, too: closed on page 1, open and empty on page 2.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>The last command brings page 2. Right-click it.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Edit command…” here, too.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>A self switch belongs to one event alone: another chest has an A of its own.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Pip cannot see a self switch of the chest. What others are to know needs a switch.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>So double-click “+” to add one.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click the “Flow” tab. Switches are among its commands.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “Set switches”.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Click this field and choose “Herb found”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>“ON” is set already: whoever opens the chest turns the switch on.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Now the chest tells the whole game that the herb has been found.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>The chest is ready. Click “OK”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Now it is Pip's turn. Click “Amberfield”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Double-click Pip.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Pip has one page only. Whatever happens, he says the same.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click “New page” to see what that gives him.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>A new page is blank. Without a picture, Pip would vanish from the map.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>That is no good for Pip. Click “Delete page”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Page 1 has all that he needs. Click “Copy page”.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “Paste page”. The copy becomes page 2.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>You see page 2 now. It has Pip's picture, and so far the words of page 1.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>A right click on the tab of a page opens a menu that does the same.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click the field beside “Switch” and choose “Herb found”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>The other conditions stay at “None”, so the switch alone decides.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Click the first message and press the Enter key. That opens it like a double click.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Delete the old words and type new ones, such as A herb! Keep it. Then click “Next”.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>If the copy has other old words, too, right-click them and delete them.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Page 1 stays as it was. It counts as long as the switch is OFF.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Pip is ready. Click “OK”.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click “Play” to see him change.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Talk to Pip, open the chest with the herb, talk to him again. Esc leads back.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Did Pip have other words for you after the chest?</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Then see whether the chest does its part. Click “Mila's house”.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Double-click the chest again.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Below the self switch there has to be this line for the switch “Herb found”.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Double-click the line.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>“Herb found” and “ON” have to be chosen here. Correct what is not.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Click “OK” to keep it so.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Click “OK”. Later, check that Pip's page 2 waits for the same switch.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Guards, gates, a whole village can change in this way, with a single switch.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Click “Save” to keep both events.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Done! Your events change with pages. In lesson 5, people ask questions. Click “Next”.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep5</name>
    <message>
      <source>#1</source>
      <translation>In this lesson the Elder asks, and the player answers.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with the village? “No” opens one of yours, such as lesson 4's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The village, with Pip and Mila's house, will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Amberfield is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Amberfield” in the list of maps. Everything happens in the village.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell. Then click “Next”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events”. Two people are missing in the village.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>The Elder will stand here. A double click on a free cell makes an event.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>This lesson has three parts: the Elder asks, he remembers, Toma joins.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Part 1, the Elder asks. Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Click “Elder”.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Should the Elder move his feet while he stands there?</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Then leave this box empty: he stands quite still. You can change that at any time.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “Moves its feet while standing”.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Double-click “+”. First he says what he wants.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>“Show message” is selected already. Click “OK”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>In a conversation, a name in “Speaker” tells who is talking. You may type one here.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Type his question, such as Will you look for our lamp? Then click “Next”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Click “Preview…” to see whether it all fits in.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>The answers will appear above this message. Click “Close”.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “Copy page”: page 2 will need his look and one message. Then click “Next”.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Now for the answers. What the player chooses decides what comes next.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Double-click “+” below the question.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Show choices”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Two answers are here already. You may type others in their place.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Players who press X instead get the second answer, “Choice 2”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “OK” to add the choices.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click the line of the first answer. What is indented below it is only for this answer.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Double-click the “+” right below: here he says thank you.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “Show message”.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Type his thanks, such as Thank you, Mila! Then click “Next”.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Now the second answer: double-click the “+” below that one.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Type what he says then, such as Come back later. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>What is added down here, below the branches, follows either answer.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>To put a command before another one, right-click that one: the menu can add it.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>The game has to remember the promise. Double-click “+” below the thanks.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click the “Flow” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Set switches”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “OK” to choose a switch.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click this field and choose “Elder asked for help”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>It will be turned “ON”, as it should. Click “OK”.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>The switch is in the branch of the first answer, so only a promise turns it on.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>A sound goes well with it. Double-click “+” below the switch.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Click the “Audio” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Click “Play sound”.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Click “OK” to choose a sound.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Click “Choose…”.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Healing” and press the Enter key, which takes it.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Click “OK” to add the sound.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>A promise brings thanks, switch and sound; a refusal only a few words.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Part 2: the Elder remembers. Those who have promised are not asked again.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click “Paste page”. What you copied becomes page 2.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click the field beside “Switch”, choose “Elder asked for help”, then click “Next”.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Double-click the message: it still has the question.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Delete the question and type other words, such as Good luck! Then click “Next”.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Click “OK” to keep the new words.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Page 2 has no choices, because you copied the page before they were added.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>The Elder is ready. Click “OK”.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Toma will stand here, on the path. Double-click the cell.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Part 3: Toma joins the party, and then he is gone from the map.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Click the empty field to choose how he looks.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Click “Toma”.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click “OK” to take this picture.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Double-click “+”. Toma says a few words before he joins.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Type his words, such as I'm coming with you. Then click “Next”.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Click “OK” to keep what he says.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Double-click “+” below his words.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Click the “Party” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Click “Change party members”.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “OK” to choose who joins.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click this field and choose “Toma”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>“Leave” would take him out of the party. Here, “Join” is right, and chosen already.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Click “OK”. From this line on he is in the party.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Toma needs a self switch now. Do you remember what that is?</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>It is ON or OFF like a switch, but belongs to one event only. Its pages can wait for it.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Good. Page 1 stays at “None” here, and page 2 will wait for Toma's own A.</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Double-click the last “+”.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>Click “Flow” once more. Then click “Next”.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Click “Set self switch”.</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>Click “OK” to see its fields.</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>“A” and “ON” are set already, which is what Toma needs.</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>Click “OK” to add this line.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>Click “New page”: this time a blank one is right. Then click “Next”.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Click the field beside “Self switch” and choose “A”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>No picture and no words: with page 2, Toma is gone from the map.</translation>
    </message>
    <message>
      <source>#90</source>
      <translation>By the way: on the map, a right click on an event lets you copy it with all its pages.</translation>
    </message>
    <message>
      <source>#91</source>
      <translation>Toma is ready, too. Click “OK”.</translation>
    </message>
    <message>
      <source>#92</source>
      <translation>Click “Play” and talk to the two.</translation>
    </message>
    <message>
      <source>#93</source>
      <translation>Refuse the Elder first, then promise. Talk to him again, then to Toma. Esc leads back.</translation>
    </message>
    <message>
      <source>#94</source>
      <translation>Did all go well? Click “Save”.</translation>
    </message>
    <message>
      <source>#95</source>
      <translation>Done! Players decide now, and a hero has joined. Lesson 6 is about heroes. Click “Next”.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep6</name>
    <message>
      <source>#1</source>
      <translation>In this lesson the hero gets a warm cloak.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project for this lesson? “No” opens one of yours, such as lesson 5's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The project comes with the village and its people.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The project is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Amberfield” in the list of maps. The game begins in this village.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>The game begins here, with Mila. You see nobody, as a hero is no event of the map.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “Events” to see who is on the map.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>This is Toma, who joins Mila. Double-click him.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>This is how Toma looks while he stands on the path and waits for Mila.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Whoever talks to him reads this first.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Then he joins the party. This line names an actor, and actors are in the database.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>A right click on that line could delete it, and Toma would stay behind. Leave it as it is.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>So a hero is made in the database: picture, class, level, equipment.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>A map is one place. What holds for the whole game is in the database.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “Database” to open it.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Each tab has one kind of thing. Click “Armor”: Mila needs a cloak.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “Add”. The list gets one more entry, still empty. Then click “Next”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Type a name, such as Travel cloak. Then click “Next”.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Each point of “Defense” makes an enemy's blow weaker. If you like, type 4 for the cloak.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “Actors”. All who can be in the party are there.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Choose your cloak below the old cap, so that Mila wears it. Then click “Next”.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>In battle the player decides for the hero. Make sure of “You choose”: click it.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Play” to see the hero of your game.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Begin a new game with Enter and walk with the arrow keys. That is Mila!</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>The X key opens the game's menu. Look up what Mila wears.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Press the Esc key until the game closes.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “Save” to keep Mila and her cloak.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Looks are set there, too: a click on the picture “On the map” offers others for Mila.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Done! You have made armor and equipped a hero in the database.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Lesson 7 gives the village a shop and an inn. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep7</name>
    <message>
      <source>#1</source>
      <translation>In this lesson the village gets a shop and an inn.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with empty shop and inn? “No” opens one of yours, such as lesson 6's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Amberfield comes with both houses; only the people are missing.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The village is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>First a look at what can be sold. Click “Database”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>All that a shop can sell is on “Items”, “Weapons” and “Armor”, with its price.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Nothing has to be changed. Click “OK”.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Events”. A merchant is an event, like everybody in the village.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>“Shop” and “Inn” are maps below the village. Their doors are there already.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Click “Shop” to open this map.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>The merchant will stand here, behind his counter. He is called Bruno.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Double-click this cell to make his event.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>The name is only for you. You may type his, so that you find him again.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Do you still know this window from lesson 2? “No” shows you around.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Then an idea: on a second page the shop could have more goods later in the game.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>With a switch here, the merchant is only there once that switch is ON.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>These conditions say when an event is there. Nothing is set: Bruno is always in his shop.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>The picture is how he looks. It is still empty; you choose one in a moment.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>“Stays in place” is right for a merchant, or he would leave his counter.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>“When examined” starts the event when the player stands before him and presses Enter.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>What he does will be listed here. “+” is the place for the first command.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>“Apply” keeps what you have done so far, and the window stays open.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Merchant”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>He wears a red cap: players will know Bruno again at once.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>He will turn to whoever talks to him. “Keeps its direction” would stop that.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>A shop needs two commands: first a greeting, then the window with the goods.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Double-click “+” to add the greeting.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>“Show message” is the first command on “Message”. Click “OK”.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Type how Bruno greets the player, such as Welcome! Then click “Next”.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>This is the greeting. Commands run from top to bottom, so it comes first.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Double-click “+” below it.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click the “Scene” tab.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click “Shop”. It opens a window in which the player buys and sells.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>One thing is for sale already. Click “Edit…” to look at it.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>It is the herb. Click “Another one” for a price of Bruno's own. Then click “Next”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Type 6. That is a little less than in the database.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “Add…” for a second thing to sell.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>It is to be something to wear. Choose “Armor”.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Choose the second one in the list, the cloak that Mila wears.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Click “Another one” for the cloak, too. Then click “Next”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Type 35.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Should the party be able to sell things to Bruno, too?</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Then click “The party can only buy”.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Then leave “The party can only buy” as it is. The window will have both, buying and selling.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>The new line opens the window with the goods once the greeting has been read.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>A right click on the shop's line lets you copy it, for a shop in another village.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>A right click on the tab of the page can copy it, to a page 2 with other goods.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>“Note” has room for what you want to remember, such as what he sells.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “OK”. Bruno takes his place behind the counter.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Now the inn. Click “Inn”.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click this cell behind the counter: the innkeeper will stand here. Then click “Next”.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Click “Inn”. A quick event writes all the commands of an inn by itself.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>It only asks for a picture and the price of a night. Click “OK” to take both as they are.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>The innkeeper asks, takes the gold, lets the party sleep and heals it.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>A right click on a cell offers the quick events, too.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Click “Save”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Click “Play” to visit your town.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Enter both houses in the east, walk around the counter and press Enter. Then click “Next”.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Press Esc to come back to the editor.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Done! You can open a shop with any goods, and an inn with a quick event.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Lesson 8 leads out of the village, to other maps. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep8</name>
    <message>
      <source>#1</source>
      <translation>In this lesson the player travels from map to map.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with village and forest? “No” opens one of yours, such as lesson 7's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The forest south of Amberfield is there, but no way leads to it.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Village and forest are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>The journey begins in the village. Click it in the list.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events”. A way out is an event, too: it waits until the player steps on it.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Here the road leaves the village. Click this cell to mark it.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Passage”. This quick event leads to another map.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>A road needs no door. Choose “None” in the list. Then click “Next”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Where does it lead? Click “Choose…”.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Forest path”. The map of the forest shows up.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click this cell, one step inside the forest: the player comes out here. Then click “Next”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “OK” to make the passage.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Whoever goes in wants to come back. Click “Forest path” to make the other side.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Double-click this cell, where the road leaves the forest in the north.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>You make this way out all by yourself, to see what a quick event saves you.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>No picture: like every way out, this event is not seen in the game.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>It has to start when the player steps on it: choose “Touched by the player”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Double-click “+”.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>First click “Party”. Its commands give gold, items and members, but no way out.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>A way out is a change of scene: click the “Scene” tab.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>“Transfer” is selected. It takes the player to a cell of any map. Click “OK”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Choose…” to show the place on the map.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>You see the village already. Click this cell, one step inside it. Then click “Next”.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>“Column” and “Row” say which cell it is. They can be typed, too.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “OK” to take this cell.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>All that the game needs is filled in now: the map and the cell.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>On the way, the screen turns black for a moment. “White” would suit a dream.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>That is all: a quick passage consists of this one command, too.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>The road is two cells wide. A right click on the event lets you copy it on the map.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “OK”. Village and forest are connected.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>The journey goes on. Click “Sample map…” to add a third place.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “Snow field”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click “OK”. The snow field is added at the end of the list and opens.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>It has no music yet. Double-click it to change its properties.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Each map has its own music: it changes when the player arrives. Click “Choose…”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>“Evening” is calm enough for so much snow. Click it.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “OK” to keep the music.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>A person can lead to another map as well. Double-click this cell: a guard will stand here.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Whoever is lost in the snow asks him, and he leads the way back to the forest.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click “Guard”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Do you know what “Keeps its direction” is for?</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>With it, somebody looks ahead whoever talks to him. Without it, the guard turns to you.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Then you know that it stays off here: he turns to those who are lost.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>“When examined” is right this time: only those who ask are taken along.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Double-click “+” for his words.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>First he speaks. Make sure that the “Message” tab is in front: click it.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>“Show message” is selected. Click “OK”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Type what he says, such as Follow me! Then click “Next”.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>A right click here can copy or delete his words. The transfer has to come below them.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Double-click the “+” below it.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>“Transfer” is on the “Scene” tab: click it.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Click “Choose…” once more.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Click “Forest path”.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Double-click this cell in the east. That takes it and closes the window.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>With “Keep” the player goes on looking the same way. You could also choose another one.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>“Place in variables” is for places that change. Lesson 9 has variables.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Commands below a transfer would go on running on the new map.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Click “OK”. The guard is standing in the snow.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>One way is missing: the one into the snow. Click “Forest path”.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>The side path ends in the east. Click this cell.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Click “Passage” again.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>No door here, either: choose “None”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Click “Choose…” for the place in the snow.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Click “Snow field”, your new map.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Double-click this cell, beside the guard.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Click “OK”. All three maps are connected.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “Save” to write maps and ways into the project's folder.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click “Play”. Walk south, then east into the snow, and ask the guard to lead you back.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>When you have seen all three maps, press Esc to come back.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Done! You can add maps and lead the player from one to the other.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Lesson 9 has a lever that opens a gate. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep9</name>
    <message>
      <source>#1</source>
      <translation>In this lesson a lever opens a gate that stays open.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with a mine and its gate? “No” opens one of yours, such as lesson 8's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The mine will be in the project, with a gate that is shut.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The maps are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Mine entrance”. The gate and the lever are on this map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell. Then click “Next”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events”. Now you see the lever on the left, and the gate in the rock.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Double-click the lever to open its event.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>The lever asks already. What is indented below this answer happens when it is given.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>A gate opens, it says here; but so far these are only words.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Double-click this “+”. It belongs to the first answer, too.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click the “Flow” tab: its commands decide and remember. Then click “Next”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Double-click “Set switches”. That chooses the command and opens it at once.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>You know switches from lesson 4. Events on every map can ask for one: the gate, too.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “…” to see all switches with their names.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “Gate open”. The gate waits for this switch; its name is a help for you alone.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “OK” to take this switch.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>“ON” is chosen already: pulling the lever turns the switch on. Click “OK”.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Here is your command. The gate has an open second page that waits for this switch.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Double-click “+” below it. The game is to count, too.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Double-click “Set variables”.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>A variable is a number that the game remembers. Number 1 will count pulled levers.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click “Add”. “Set” would forget what was there before.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click the small upper arrow once, so that 1 is added. Then click “Next”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Right-click this line: “Delete command” is there, for mistakes. Then click “Next”.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Keeps its direction”: a thing does not turn to whoever examines it.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>A pulled lever should look pulled. Click “New page”.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Page 2 is in front now. It is blank: it needs a condition and a picture.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Choose “Gate open” beside “Switch”. This page is to wait for it.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>As long as the switch is OFF, the lever has its first page. Once it is ON, it has this one.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>A self switch belongs to one event only, like a chest's. The gate could not see it.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click the “Things” tab: the lever is no person.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “Pulled lever”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>This page has no commands: a lever that was pulled does nothing more.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click the first page: there the lever is up and asks, as before. Then click “Next”.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click “OK” to keep both pages.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Save” to keep the lever. Then click “Next”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “Play” and begin a new game. South of the village lies the forest, behind it the mine.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Pull the lever, look at it and walk into the gate. Esc leads back. Then click “Next”.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Done! The game remembers with switches and variables. Lesson 10 is about music.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep10</name>
    <message>
      <source>#1</source>
      <translation>In this lesson maps get their music and battle backdrops.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with village and mine? “No” opens one of yours, such as lesson 9's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The village, the forest and the mine will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The maps are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Music belongs to a map, as in the snow of lesson 8. The village is to get its own.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Play” to see how the village is now.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Choose “New game” and press Enter until Mila can walk. Then click “Next”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Mila walks with the arrow keys, or to where you click. All keys are shown below the game.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Go into the shop and out again. Nothing says that this is Amberfield, and it is quiet here.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Press the Esc key to go back to the editor.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Amberfield” in the list of maps.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click “Events”. Now you see the doors and the ways out, where the music changes.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Behind this door is the shop. Its piece, “Home”, begins as soon as Mila is inside.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Here she goes to the forest path, where “Forest” begins.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Maps can share a piece: Mila's house, the shop and the inn all have “Home”.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Forest path and mine entrance share “Forest”: it does not stop between them.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>A right click on a map in the list leads to “Map properties…”. A double click is quicker.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Double-click “Amberfield”, which has no music yet.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>In “Music”, choose “Village”, a calm piece for a peaceful place.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Click “Choose…”. In that window there is more to set for a piece.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>“Village” is chosen here, too. The list holds all the music there is.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>“Volume” says how loud it is. A little below 100 % leaves room for sounds.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “OK” to take this piece.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Type the name that the player is to see here, such as Amberfield, and press Enter.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Click “Play” to see what has changed.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Begin a “New game”: there is music now, and your name for the village. Then click “Next”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Go into the shop and out again. Listen: at the door the music changes.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>In the south is the forest path. It shows no name, because none is set for that map.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Now for battles. Enemies stand before a backdrop: on this map it is “Mountains”.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “Old mine” in the list of maps.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click the “Nature” tab. Its “Rock” is the tile that the mine is built of.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>There is nothing but rock here. Yet without a backdrop, its battles would show a meadow.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Double-click “Old mine”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click the empty field beside “Battle backdrop”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click some of the names; on the right you see each backdrop. Then click “Next”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click “Rocks”, which suits a mine.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click “OK” to take this backdrop.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Show the name on arrival” to switch it off: the mine is to stay nameless.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click “OK”. Enemies in the mine will stand among rocks.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>The map looks as it did before: a backdrop is seen in battles only.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>No enemies come here yet, as “Encounters” is empty. Lesson 14 brings the first ones.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>“Undo” takes back what was set in “Map properties”, too, window by window.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click “Map” to hide the events again.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>In this mode “Map properties…” is there for a right click in the map view, too.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Click “Save” to write music, name and backdrop into the project's folder.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Done! You can give a map its music, a name on arrival and a backdrop for battles.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Lesson 11 lets guards walk on a route of your own. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep11</name>
    <message>
      <source>#1</source>
      <translation>In this lesson two guards come, to the village and the mine.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project for this lesson? “No” opens one of yours, such as lesson 10's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Village and mine will be in it, and words that all guards share.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The project is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”. Its first map is the village.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Events”. Guards are events, like all people on a map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>The way to the forest gets a guard. Double-click this empty cell to make him.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Guard”.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Choose “Walks a route”: he is to go where you tell him to. Then click “Next”.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Route…” to lay down his way.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Each of these buttons adds a movement. Click “Left” once: one cell. Then click “Next”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>At the end of his way he looks around. Click “Wait…”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Time is counted in frames, 60 of them a second. 30 are right for a short look.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “OK”. The waiting is in his route now.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “Right” as often as “Left”, so that he comes back to his cell. Then click “Next”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>At this end he stops as well: click “Wait…” once more.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “OK”. Here he waits just as long.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>“Repeat the route” is on, so he never tires. Click “OK”.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>This is how fast he takes each step. The player walks at “Normal speed”, too.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “Moves its feet while standing”, so that he does not freeze while he waits.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>A guard can be spoken to while he walks. He stops until all has been said.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>A common event is a list of commands that any event can run. You write it only once.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>What does he say? Double-click “+”.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Common events are called from the “Flow” tab. Click it.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Double-click “Common event”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click the second one. It holds what every guard calls out first.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “OK” to add the call.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Click the new line. Here the common event runs; when it ends, the next line follows.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Double-click “+” below it, for what only he has to say.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click the “Message” tab. “Show message” is at its top.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “OK” to write a message.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Type his words, such as Take care on the forest path. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “OK” to keep his words.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Double-click the message once more: the player should see who speaks.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Type who speaks, such as Guard, into “Speaker”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click “OK”. The name will appear above his words.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click his message. Players hear first what all guards call out, and then this.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Right-click the call: it could be copied for other guards with this menu. Then click “Next”.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “OK”. The guard takes his post.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Does he obey? Click “Play” and begin a new game. He walks just below you.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Watch him walk, then step before him and press Enter. Esc leads back here.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click “Mine entrance”, where the second guard keeps watch.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Double-click this cell near the gate.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>He gets a picture, too: click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>A double click is quicker than “OK”: double-click “Guard”.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Click “Moves its feet while standing” for him, too.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Keeps its direction”. Even when spoken to, he looks straight ahead.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Double-click “+”. He uses the same words as the other guard.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>The call is on the “Flow” tab again. Click it. Then click “Next”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Double-click “Common event” once more.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click the second one again.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “OK”. Both guards call the same list now.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Click the call. Should its words change one day, you change them once: all guards follow.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>What he says next depends on the gate. A conditional branch looks at a switch first.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Double-click “+” below the call.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Double-click “Conditional branch”. The “Flow” tab is still there.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Choose “Gate open”: it is the lever that turns this switch on. Then click “Next”.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Click “OFF”: the branch is for those who find the gate shut.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Click this box, too. It adds a second branch, for when the gate is open.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Click this line. What is indented below it happens as long as the gate is shut.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Double-click the indented “+” below it, for a hint.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click the “Message” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Type a hint, such as Only the lever opens this gate. Then click “Next”.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Click this line. Below it stands what happens once the gate is open.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Double-click this “+”: once the gate is open, he need not speak of the lever.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>“Show message” is still selected. Click “OK”.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Type other words, such as Go in, but take care. Then click “Next”.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Click “OK”. Now both posts are manned.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “Save” to keep both guards.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click “Play” once more. The mine lies south of the village, behind the forest.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Ask the guard, pull the lever on the left and ask him again. Esc leads back here.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Done! Routes move people, common events save work. Lesson 12 visits the database.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep12</name>
    <message>
      <source>#1</source>
      <translation>In this lesson you tour the database and add Sena, a hero.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with two heroes? “No” opens one of yours, such as lesson 11's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Mila and Toma will be in the project, with all that they need so far.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The project is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>“Amberfield” has to be open now. If it is not, click it in this list.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Maps say what a place looks like, events what happens there. You have made both.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events” to see the people of the village. Then click “Next”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Toma, on the path, is an event. It tells what he says and that he joins the party.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>You know the menu of his event. It says nothing of his strength or his sword.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>That is in the database. Click “Database”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>You were here in lesson 6. “Actors” has to be in front. If it is not, click it.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Actors are those who can walk in the party. Click “Toma”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>His class decides how many HP he has and which skills he learns.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “Mila”. She has another class and wears a cloak.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “Toma” again, to see what else he has.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>This is how he walks on the map. Sena will get her picture here, too.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>And this is the weapon with which he begins.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Click “Classes”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “Guardian”, the class of Toma.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>This curve shows how the highest HP of a Guardian grow from level to level.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Click “Traveler”, the class of Mila. Her HP grow more slowly.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>“Skills” holds what an actor can do in a battle besides a plain blow.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>When a skill strikes, sparks or the like are seen. They are made in “Animations”.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Items”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Tonic”, which lies in a chest in Mila's house.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>This is what it does: it ends the state “Fainted”, so that an ally wakes up.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Weapons”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “Hunting knife”, which Bruno sells.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “Wooden sword”: its attack is lower.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Caps and cloaks are in “Armor”. They have a defense instead of an attack.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>“Enemies” has those whom the party fights. Lesson 14 puts some into the forest.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>“Troops” puts enemies together; “States” holds what befalls somebody in a battle.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “Tile sets”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click “Winter”. A map with this tile set lies in snow.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “Night”. The old mine has this one.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click “Common events”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click the second one. Both guards of lesson 11 call it: it is written only once.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Click the first one: the words with which the game opens.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “System”. It holds what concerns the game as a whole. Then click “Next”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Click the large field. It will hold the picture of the title screen.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “Village at dusk” to look at it.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>The large picture shows what is selected. Nothing is changed by that.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Now click “The lamp”, which the story is about.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click “The long road”. It suits a game that is about traveling.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>The choices of the title screen lie on this picture. Lesson 19 sets it up.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>As long as nothing is decided, “None” is right. It comes before all the pictures.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Double-click “None”. The title screen stays empty until lesson 19.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>That was the walk. You have only looked, so nothing is changed.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Whatever you change now is kept by “OK” and forgotten by “Cancel”.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Now for Sena. Click “Actors”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>The list has room for two. Click “Change maximum…”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Type 3 and press the Enter key.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>A new actor is empty. It is quicker to copy one: click “Toma”.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “Copy”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Click the new row, number 3.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Click “Paste”. There are two Tomas now. Then click “Next”.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Type Sena in place of his name. Then click “Next”.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>She still looks like Toma. Click the picture.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>“People” has the pictures for actors. Chests and doors, for events, are in “Things”.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Click “Elder”, only to try. She would look much too old.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Click “Sena”.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>This is Sena. Later on, she will help the party with magic.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>A double click on a name would take its picture at once. “OK” does the same.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click “OK” to give Sena this picture.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Her face has come along. The game shows it where you look at her figures.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>“First level” is the level with which she begins. So far it is Toma's.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>She is a little stronger than he is. Type 2.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>To see her in the game, put her into the party. Click “System”, then click “Next”.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>The party begins with Mila. Click “Add” for one more. Then click “Next”.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Choose Sena, the third one, in this list. Then click “Next”.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Choose “Title” here, for the title screen. Then click “Next”.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Choose “Battle” here, for all battles. Then click “Next”.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Click “OK” to keep it all.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Click “Play” to see whether she is there.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Click “New game” in the game, and read until Mila can walk. Then click “Next”.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>Press the X key. The menu shows who is in the party. Then click “Next”.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Does Sena stand below Mila in the menu, with level 2?</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Then “Party at the start” lacks her, or it has Mila twice. You will go there again soon.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>Sena herself is safe: “Actors” has her as number 3. In the party she is a guest today.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Choose “Status” and then her: class and weapon are those of Toma. Then click “Next”.</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>Look around as you like. Press the Esc key until the game closes.</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>Click “Database” again.</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>In the story Sena joins only in lesson 16. Click her in the party.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>Click “Delete”. She leaves the party, not the database. Then click “Next”.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Click “Save” to keep Sena in the project's folder. Then click “Next”.</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>Done! You know what is where. Lesson 13 makes things to use and to wear.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep13</name>
    <message>
      <source>#1</source>
      <translation>In this lesson you make a better tonic, sword and cloak.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with a shop and goods? “No” opens one of yours, such as lesson 12's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Items, weapons and armor of the first lessons will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The goods are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Events” to see who is on the map.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size” to see each map at its normal size.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Things come from chests. Click “Mila's house”, where a herb and a tonic lie.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Things come from shops, too. Click “Shop”, where Bruno sells what the party needs.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Forest path”. From lesson 14 on, its enemies leave something, too.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click “Old mine”. From lesson 16 on, its boss has what nobody sells: the lamp.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>First see how strong Mila is today. Click “Play”.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “New game” in the game, and read until Mila can walk. Then click “Next”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Press the X key and look at Mila's HP in the menu. Then click “Next”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>“Equipment” shows her sword and her cloak. Remember her HP: they will grow.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Press the Esc key until the game closes.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>What things cost and do is here. Click “Items”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Click “Bread”, the cheapest thing that Bruno has.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>This is what it does: it gives back 10 HP.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>This is what Bruno takes for it. He pays half of that when the player sells some.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Click “Herb”. It costs more and gives back 30 HP.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “Tonic”. It costs much more, so it should do more.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>So far it only wakes up an ally, who then has 1 HP and can hardly do a thing.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Add…”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “MP”. The tonic is to give back MP, too, which skills cost.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>10 points are right for a beginner. A number below 0 would take MP away.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>The tonic now has both effects. Click “OK” to keep it.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “Save”, so that the tonic is safe, whatever comes.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Next come the weapons. Click “Database”.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “Weapons”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click “Hunting knife”, the best weapon so far.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “Wooden sword”, with which Mila and Toma begin.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>A blow takes twice the attack, less the defense of the other. So each point counts twice.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>A better sword is to come. Click “Change maximum…” to make room for it.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Type 3 and press the Enter key.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click the new row, number 3.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Type a name, such as Iron sword. Then click “Next”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>In a text, such as “Description”, a right click opens a menu for copying and pasting.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>“Attack” says how hard it strikes. It should be more than that of the knife.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Type 14: this is a real sword. Then click “Next”.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Now the price. Click “Hunting knife” again to compare.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>A slime brings 3 gold. So you can count how many battles the knife costs.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Should players have to save up for the sword for a long time?</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Type 90. Players will have it soon.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>A cheap sword makes the next battles easy. Enemies can be stronger, then.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Type 180. Who has it can be proud of it.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Until then players use the knife. So there is something for each purse.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>The sword is ready. Click “OK” to keep it.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Click “Save” to keep the sword in the project, too.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Now for the armor. Click “Database”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “Armor”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click “Travel cloak”, which Mila wears.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “Cloth cap” to compare. Each point of “Defense” takes one off every blow.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Now back to “Travel cloak”. Click it.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Traits are at work as long as somebody wears the thing. This list is empty so far.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>“Max HP” is chosen already. Type 120: with the cloak Mila has a fifth more HP.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Click “Actors”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Click “Toma”. He is the strongest and gets the new sword.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Choose the new sword, the last one in this list.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Toma is hot-headed. Should he choose by himself what he does in battles?</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Then leave “You choose” on. In a battle the player tells him what to do.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>That is good for a small party: each tonic goes where it is needed.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click “By itself”.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>He strikes when he likes. Battles get faster, and less can be planned.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Click “Sena”. The wooden sword will do for her: her skills are her strength.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Click “Mila”, who wears the cloak.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Does the cloak change her looks, too? Click her picture to find out.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>It does not: what somebody wears changes figures. The picture is chosen here.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Click “OK”: she stays as everybody knows her.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “OK” to keep it all.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click “Play” again.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Does Mila have more HP than before?</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Then look at “Equipment”: only who wears the cloak has its trait.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>If she wears it, its trait says 100 %. Change it to 120 % after the lesson.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>The cloak works! Close the menu with the X key, walk to Toma and talk to him.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>He comes along. Open the menu: “Equipment” shows his sword and how hard he strikes.</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Click “Save” to write sword, tonic and cloak into the project's folder.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>In “Shop”, Bruno's event has the list of his goods. Add the sword later, as in lesson 7.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Done! Things do what you want now. Lesson 14 makes enemies to try them on.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep14</name>
    <message>
      <source>#1</source>
      <translation>In this lesson enemies move into the forest.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with a quiet forest? “No” opens one of yours, such as lesson 13's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The forest is there, and one kind of enemy that nobody has met yet.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The game is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Forest path” to see where it will happen.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>So far nothing happens here. Enemies are made in the database: click “Database”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click the “Enemies” tab.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>This is the slime, weak enough for a start. “EXP” and “Gold” are the reward for beating it.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>A beaten enemy may leave something. Click “Add…”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>The first item is selected already: the herb. That suits a slime of the forest.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Type 8: one slime in eight leaves a herb.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>What else could live in a forest? Click the picture of the slime.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>These are the monsters. Click “Mushroom” to see it large.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “Ghost”, too. Each enemy has its own picture.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>The slime has to stay a slime: click “Cancel”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>A second enemy is quickly made from the first. Click “Copy”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “Add”: the list gets one more row. Then click “Next”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>The new row is selected. Click “Paste” to fill it with the copy. Then click “Next”.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>It is to be a rat. Type its name, such as Giant rat. Then click “Next”.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>It still looks like a slime. Click the picture.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click the “Animals” tab.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Rat”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Type 30: the rat can take twice as much as the slime.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Enemies fight in troops, even one alone. Click the “Troops” tab.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Add” for a second troop. Then click “Next”.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>A name helps you to find the troop again. Type one if you like, such as One rat.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Nobody is in it. Click “Add” below the list of members. Then click “Next”.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>It is a slime at first. Choose the second one in the list, your rat.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>The picture below shows how the rat faces the party. Click the first troop to compare.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>There stands the slime. Click row 2 to go back to your own troop.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Is it too strong? A test tells. Click “Battle test…”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Nobody is entered here, so the party of the game fights as it begins: Mila alone.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>With “Add” you can also try a party as it will be later, with other levels and weapons.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click “Start the battle”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Attack the rat with the Enter key. When you have seen enough, press Esc.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Which troops turn up is a matter of the map. Double-click “Forest path”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>“Encounters” is empty. Click “Add…”: troop 1, the slime, is selected there.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>So eerie a forest needs no sign. Click “Show the name on arrival” to switch it off here.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>A battle now begins after 12 to 36 steps, each time anew. Nothing is seen beforehand.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>The party can try to flee. If it loses, the game is over, so save in time.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Is the rat to come, too? A right click on the map in the list has “Map properties…” for that.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>In the mode “Map”, a right click in the map view leads there as well.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Click “Amberfield”, the village.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>No troop is entered for this map, so nobody is attacked here.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Go back to the forest for one thing more: click it.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>A good game warns its players. You draw a place that looks spooky.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Map”, so that you can draw.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Make sure that the “Ground” tab is in front: click it.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click “Water”. Slimes like it, but nobody could walk through a pond.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “Sand” instead. Where slimes crawl, the grass is gone.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click this cell beside the path.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>It only warns. Battles begin anywhere on this map, not just here.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>A right click on the tiles changes the tile set. In “Night”, all the forest is spooky.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>In the mode “Events” a right click makes enemies that are seen, like the boss of lesson 16.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Click “Save”.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Too hard? Change it in the database. Gold from battles buys herbs and knives.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>“Play” begins the game in the village. The forest lies in the south.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Done! You can make enemies and troops, try them out, and let them loose on a map.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Lesson 15 gives the heroes skills against them. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep15</name>
    <message>
      <source>#1</source>
      <translation>In this lesson your heroes get skills, each class its own.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with three heroes? “No” opens one of yours that has the class “Sage”.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. Mila, Toma and Sena will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The heroes are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>“Amberfield” has to be open: if not, click it. If the zoom is not 100 %, click “Full size”.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Events” to see who is in the village. Then click “Next”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Toma waits here. Double-click him.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Whoever speaks to Toma gets him into the party, with his class and all its skills.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Cancel”. Before he joins, there should be something to learn.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click “Database”. First you make two skills.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Click the “Skills” tab. All skills of the game are in its list.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Add”: a new, empty skill comes last in the list. Then click “Next”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>The first one heals. Type a name, such as Heal. Then click “Next”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Choose “One ally” at “Acts on”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “Add…” below “Effects” to decide what the skill does.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>“HP” is chosen: the skill changes somebody's health.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Type 40 at “Points”. That many HP come back.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “OK” to keep the first skill. At 0 MP it can be used as often as you like.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Click “Database” again, for the second skill.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>The second skill attacks. Click “Add” once more. Then click “Next”.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Type a name, such as Spark. Then click “Next”.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Choose “One enemy” this time.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Add…” for its effect.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Type -25. A number below 0 takes HP away.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>A skill may have several effects. Click “Add…” again.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Element”. “Fire” comes first there, which suits a spark.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “OK”. Enemies that fear fire will suffer twice as much.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “OK” to keep the second skill.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Who can learn the skills? Double-click the Elder.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Not the Elder: he only talks, and is not among the “Actors” of the database.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>These commands are all that he does. What a hero can learn, the class decides.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “Cancel”. He can stay as he is.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click “Database” again, now for the classes.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click the “Classes” tab. Each hero has one of these classes.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>“Traveler”, the class of Mila, is selected. Click “Add…” below “Skills to learn”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Click your second skill, the one that attacks.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>At level 1 Mila knows it from the start. Click “OK”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Add…” below “Traits”. A class can have some, too, as the cloak of lesson 13 has.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>“Max HP” is chosen. Type 110 and press Enter: Mila gets a tenth more HP.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>You know this curve of HP. At each level the trait adds a tenth for Mila.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Sena is the one who heals. Click “Sage”, her class.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Click “Add…” below “Skills to learn”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click your first skill, the one that heals.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>A Sage has few HP. Click “Add…” below “Traits” to help her.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Type 120 for a fifth more HP, and press Enter.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Skills can come from a trait, too. Click “Add…” below “Traits”.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Click the “Skills” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>“Knows a skill” gives one at any level. The list also has a trait that forbids one.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>“Strike” is chosen, so that Sena can also defend herself.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click “OK”. Each of the three heroes has strengths of their own now.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>A Guardian should look like one. Double-click Toma.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click “Keeps its direction”. He keeps his eyes on the path, whoever speaks to him.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “Save” to write skills and classes into the project's folder.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Click “Play” to see the new skill in the game.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Begin a new game. On the map, X opens the menu, with Mila's skills.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>The menu also shows her status, with her class. Toma and Sena join later.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Look around in the menu. Esc on the map leads back to the editor.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Done! You can make skills, let a class learn them, and give it traits.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Lesson 16 builds the battle against the stone warden. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep16</name>
    <message>
      <source>#1</source>
      <translation>In this lesson a boss guards the lamp, deep in the mine.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project for this lesson? “No” opens one of yours that has five kinds of enemies.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The project holds the whole way, from the village to the mine.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>Village, forest and mine are being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Click “Old mine” in the list of maps.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>The boss will stand here. First he gets his figures, then his battle, then his words.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “Database”. The lamp comes first: the boss is to drop it.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Items”.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click “Add” below the list: that makes an empty item. Then click “Next”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Type its name, such as Dawn Lamp. Then click “Next”.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Key item”: the party keeps the lamp, whatever happens.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>The lamp's light gives strength. Click “Add…” below “Effects”.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Type 20 for “Points”. The light gives back that many HP.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>The lamp is finished. Click “Enemies” to make its guard.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “Add” again, for an enemy who can do nothing yet. Then click “Next”.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Type his name, such as Stone warden. Then click “Next”.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Type 220 for “HP”. Nobody else in the mine can take half of that.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Type 18 for “Attack”, so that the party needs its shields.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Click the empty field below “Picture”: his looks in battle.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “Stone warden”, a heap of rocks with eyes.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click “Add…” below “Items it drops”.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click your lamp, the last one in the list.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>“Always” is right here: nobody should win and go without the lamp.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>An enemy without “Actions” only hits. Click “Add…” below the list.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>“Strike” is chosen, the strong blow that heroes know, too.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Type 7 for “Priority”. Of several actions, a higher one comes more often.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>With a check mark here he would strike only once. He may do it again and again.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>“Always” lets him begin at once. A boss can also wait until he is weak.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>A boss can have traits, too, like a class. Click “Add…” below “Traits”.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Type 120: the stones around make his “Max HP” a fifth greater.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Battles are fought against troops. Click “Troops”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click “Add” below the list of troops. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Click “Add” below “Members”. A slime comes, for now. Then click “Next”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Choose your boss, number 6, in place of the slime.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Would you like to see at once, in a test, how strong he is?</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>“Battle test…” below the picture waits for you. Come back to it whenever you like.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “Battle test…”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>This list has those who fight in a test, whoever is in the party of the game.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “Add”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Mila fights alone. You can choose others, and add up to a whole party.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Type 20 for “Level”: alone, she needs that much.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>A weapon would help her. Here you find out how much.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>“Start the battle” lets you fight now. When it is over, click “Next”.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Click “OK” to keep the lamp, the boss and his troop.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Click “Events”. In the mine he needs an event.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Double-click this cell to make it.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>He will speak, fight, and be gone when he is beaten.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>A name such as Warden helps you to find him among all the events. You may type one.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Click the empty field below “Picture”. On the map he is smaller than in battle.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “Stone warden”.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Click “Moves its feet while standing”: this makes a figure look alive.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>“Stays in place”: he is in the way until he is beaten.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>“When examined” leaves the choice to the player, who can still turn back.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Double-click “+” to begin with words.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Type what he says, such as The lamp is mine! Then click “Next”.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Click “OK” to keep his words.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Double-click “+” below the commands.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Type Mila's answer, such as It belongs to all of us! Then click “Next”.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Two speak in turn: a face tells them apart. Click “Face…”.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Everyone has a face here. Choose “Mila” and look at her. Then click “Next”.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Click “OK”. Her face will be beside her words.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Enough words: double-click “+” for the battle.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Click “Battle”, the last tab.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Choose your troop, the last one. It has no name, so its line shows its number alone.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Without a check mark nobody can flee. That is right for a boss.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Without this one, a defeat ends the game. The player goes on from a saved game then.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Click the battle in the list. What comes below it happens only after a victory.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Double-click “+” below it. A victory deserves music.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “Audio”.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Click “Choose…” to see all the music.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Click “Victory”.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>It plays at this volume until the party leaves the mine.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>The whole game has to know of the victory. Double-click “+”.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>Click “Flow”, where the switches are.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Click “Set switches”.</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Click “…” to look through the switches.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>Click “Warden defeated”. The name of a switch says what is so when it is on.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Make sure of “ON”: click it.</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>Something in the wrong place? A right click on a command lets you copy, paste and delete it.</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>The switch is the last thing: from now on everybody can ask whether it is on.</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>He should be gone then. Click “New page”.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>Page 2 is in front now, and empty. When its conditions hold, page 1 rests.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Click “…” beside “Switch”.</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>Double-click “Warden defeated”. That chooses it and closes the window.</translation>
    </message>
    <message>
      <source>#90</source>
      <translation>So this page begins with the victory and stays for the rest of the game.</translation>
    </message>
    <message>
      <source>#91</source>
      <translation>Without a picture there is nobody, and the way is free.</translation>
    </message>
    <message>
      <source>#92</source>
      <translation>Neither words nor battle here: a boss fights once.</translation>
    </message>
    <message>
      <source>#93</source>
      <translation>One page too many? A right click on its tab has “Delete page”.</translation>
    </message>
    <message>
      <source>#94</source>
      <translation>Click “OK”. There stands your boss.</translation>
    </message>
    <message>
      <source>#95</source>
      <translation>The party needs help against him. Click “Inn” in the list of maps.</translation>
    </message>
    <message>
      <source>#96</source>
      <translation>Sena, who studies old lamps, waits here. Double-click the cell.</translation>
    </message>
    <message>
      <source>#97</source>
      <translation>Sena will speak, join the party and leave this place, just as Toma did.</translation>
    </message>
    <message>
      <source>#98</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#99</source>
      <translation>Click “Sena”.</translation>
    </message>
    <message>
      <source>#100</source>
      <translation>Type what Sena says, such as Take me along! Then click “Next”.</translation>
    </message>
    <message>
      <source>#101</source>
      <translation>Type a hint, such as Something in the mine is awake. Then click “Next”.</translation>
    </message>
    <message>
      <source>#102</source>
      <translation>Double-click “+”: now Sena joins.</translation>
    </message>
    <message>
      <source>#103</source>
      <translation>Click the “Party” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#104</source>
      <translation>Click “Change party members”.</translation>
    </message>
    <message>
      <source>#105</source>
      <translation>Choose “Sena” in the list of actors.</translation>
    </message>
    <message>
      <source>#106</source>
      <translation>This would matter only if she had been in the party before.</translation>
    </message>
    <message>
      <source>#107</source>
      <translation>She joins when all has been said. But she would still stand in the inn.</translation>
    </message>
    <message>
      <source>#108</source>
      <translation>Click the “Flow” tab. Then click “Next”.</translation>
    </message>
    <message>
      <source>#109</source>
      <translation>Click “Set self switch”.</translation>
    </message>
    <message>
      <source>#110</source>
      <translation>“A” is chosen, as it was with Toma. Each event has an A of its own.</translation>
    </message>
    <message>
      <source>#111</source>
      <translation>It turns “ON” as soon as she has joined.</translation>
    </message>
    <message>
      <source>#112</source>
      <translation>Only her own event asks for it, so she needs no switch of the whole game.</translation>
    </message>
    <message>
      <source>#113</source>
      <translation>Click “New page” for the time after.</translation>
    </message>
    <message>
      <source>#114</source>
      <translation>Choose “A” for “Self switch”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#115</source>
      <translation>Nothing else is needed: this page has no picture, so Sena is gone from here.</translation>
    </message>
    <message>
      <source>#116</source>
      <translation>Click “OK”. Sena waits for guests.</translation>
    </message>
    <message>
      <source>#117</source>
      <translation>One more has to hear of the victory. Click “Amberfield” in the list of maps.</translation>
    </message>
    <message>
      <source>#118</source>
      <translation>Double-click the Elder.</translation>
    </message>
    <message>
      <source>#119</source>
      <translation>He asks for help on page 1 and waits on page 2. For the victory he has nothing.</translation>
    </message>
    <message>
      <source>#120</source>
      <translation>Click the tab of page 2.</translation>
    </message>
    <message>
      <source>#121</source>
      <translation>Click “Copy page”: the new page is to be much like this one.</translation>
    </message>
    <message>
      <source>#122</source>
      <translation>Click “Paste page”.</translation>
    </message>
    <message>
      <source>#123</source>
      <translation>Page 3 is a copy of page 2, right behind it.</translation>
    </message>
    <message>
      <source>#124</source>
      <translation>The picture came along: he looks as before.</translation>
    </message>
    <message>
      <source>#125</source>
      <translation>Choose “Warden defeated” for “Switch”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#126</source>
      <translation>When several pages could be used, the last one counts: after the victory, page 3.</translation>
    </message>
    <message>
      <source>#127</source>
      <translation>The words are still the old ones. Double-click the message.</translation>
    </message>
    <message>
      <source>#128</source>
      <translation>Type glad words instead, such as You found it! Take it up the hill. Then click “Next”.</translation>
    </message>
    <message>
      <source>#129</source>
      <translation>Click “OK” to keep his new words.</translation>
    </message>
    <message>
      <source>#130</source>
      <translation>One event, three states: so a village takes part in what happens.</translation>
    </message>
    <message>
      <source>#131</source>
      <translation>Click “OK” to keep his third page.</translation>
    </message>
    <message>
      <source>#132</source>
      <translation>Click “Save” to write boss, Sena and Elder into the project's folder.</translation>
    </message>
    <message>
      <source>#133</source>
      <translation>Click “Play” and see whether Sena joins.</translation>
    </message>
    <message>
      <source>#134</source>
      <translation>Begin a new game and talk to Sena: the inn's door is in the southeast.</translation>
    </message>
    <message>
      <source>#135</source>
      <translation>The warden is far away, deep in the mine. Look around; Esc leads back to the editor.</translation>
    </message>
    <message>
      <source>#136</source>
      <translation>Done! You have made a boss whose end changes the world around him.</translation>
    </message>
    <message>
      <source>#137</source>
      <translation>Lesson 17 lets the boss do something in the middle of the battle. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep17</name>
    <message>
      <source>#1</source>
      <translation>In this lesson a boss gets helpers and battle events.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with a boss who is alone? “No” opens one of yours, such as lesson 16's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The mine and its boss will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The game is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Here, in the old mine, the stone warden fights alone. You change that now.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Full size”, so that the arrow points at the right cell of the map.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Old mine” in the list of maps.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Click “Events” to see who is in the mine.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Whoever examines the warden has to fight his troop and cannot flee.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>A right click on him leads to “Edit event…”. The command “Battle” names the troop.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>First the enemies. What they do and what they leave behind is in the database.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Database”.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click the “Enemies” tab.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “Cave bat”. It has no action of its own yet.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “Add…” below “Actions”.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>“Strike” is chosen already: a blow that heroes and enemies can deal.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>With several actions, “Priority” counts: one with 6 comes three times as often as one with 2.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Click “OK”. The action is in the list now.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “Add…” below “Items it drops”.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>“Herb” is chosen already. A beaten bat may leave one.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Type 10: about one bat in ten leaves a herb.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click “Crystal beetle”. It is to be a tough one.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Click “Torch”.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Type 3. A tough enemy may well be generous.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>“Strike” again. It hurts more here, because the beetle has more “Attack” than the bat.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>“Only once in a battle” is for special deeds. A plain blow does without.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>“Condition” could wait for a turn or for low HP. “Always” is right for a blow.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>The beetle gets a trait, too. Click “Add…” below “Traits”.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Click “Each turn”: the beetle gets 5 HP back each turn. Then click “Next”.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Click “OK”. Whoever fights the beetle should not take long.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click the “States” tab. Your boss battle needs a state for sleepers.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “Add” for a new state. Then click “Next”.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Type its name, such as Asleep. Then click “Next”.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>In “Restriction”, choose “Cannot act”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Click “After a turn”: sleepers wake by themselves. Then click “Next”.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Type 2: sleep lasts for two turns at least.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Type 2 here, too: and for no more than two turns.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Click “OK”. The database closes and keeps all of this.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Next the troop: enemies that fight together. Two bats join the warden.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click the “Troops” tab.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>Click number 6, the troop of the warden.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Click “Add” for a new member. Then click “Next”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>In “Enemy”, choose “Cave bat”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Type 200: the bat moves to the left of the warden.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Type 440: this bat flies on the right.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Click “Battle test…” to meet the three of them.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Click “Add”: Mila joins the party for the test. Then click “Next”.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Type 30. Such a strong Mila sees the whole battle.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Click “Start the battle”.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Fight a turn: Enter chooses “Attack”, and Enter again whom. Then click “Next”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>All three strike, but there is no surprise. That is what battle events are for.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>Press the Esc key to leave the battle.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “OK”. Mila stays in the party for later tests.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Now the battle events. First: a warden who is badly hurt draws strength from the rock.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Click “Conditions…” to say when it happens.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Click “Enemy's HP”. That sets the warden and 50 %.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Double-click “+” to add a command.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Most commands work in a battle, too. Those on the “Battle” tab work only there.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>“Show message” is selected already. Click “OK”.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Type what happens, such as The warden draws strength from the rock! Then click “Next”.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>It is nobody's speech, so “Speaker” stays empty.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Double-click the new “+”.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click the “Screen” tab. The ground is to shake.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Click “Shake screen”.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Type 8 for a strong tremor. 9 is the most.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Type 40: it lasts 40 frames, two thirds of a second.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>With this check mark, the next command comes only after the shaking.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Double-click “Flash screen”. That takes the command at once.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Red, green and blue at 255 make white light.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>At 170, the battle is still seen through the light.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>Type 20: the light is soon gone.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Click the “Flow” tab. A short pause comes next.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>Double-click “Wait”.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Type 20.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>So 20 frames are a third of a second: time to see the flash.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Click the “Battle” tab.</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>These heal enemies, let them appear or act, or end the battle.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>Double-click “Change enemy HP”.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>The first member is chosen already: the stone warden.</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>“Increase” is on, so he is healed. “Decrease” would hurt him.</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>Type 30: that many HP come back.</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>One command too many? A right click on it has “Delete command”.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>Click “New page”: each page is an event of its own. Then click “Next”.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Click “Conditions…” for this page.</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>Click “From turn”.</translation>
    </message>
    <message>
      <source>#90</source>
      <translation>Type 3: it happens when the third turn begins.</translation>
    </message>
    <message>
      <source>#91</source>
      <translation>Click “Change enemy state”. The “Battle” tab is still in front.</translation>
    </message>
    <message>
      <source>#92</source>
      <translation>In “Enemy”, choose “The whole troop”. Then click “Next”.</translation>
    </message>
    <message>
      <source>#93</source>
      <translation>“Add” gives them a state, “Remove” takes one away.</translation>
    </message>
    <message>
      <source>#94</source>
      <translation>In “State”, choose the last one: the state that you have made.</translation>
    </message>
    <message>
      <source>#95</source>
      <translation>Click the “Message” tab. Mila notices it.</translation>
    </message>
    <message>
      <source>#96</source>
      <translation>Double-click “Show message”.</translation>
    </message>
    <message>
      <source>#97</source>
      <translation>Click “Face…”: this time somebody speaks.</translation>
    </message>
    <message>
      <source>#98</source>
      <translation>Click “Mila”.</translation>
    </message>
    <message>
      <source>#99</source>
      <translation>Type what she says, such as They are asleep! Then click “Next”.</translation>
    </message>
    <message>
      <source>#100</source>
      <translation>Click “Speaker” and type her name. Then click “Next”.</translation>
    </message>
    <message>
      <source>#101</source>
      <translation>Toma answers her. Click “Face…”.</translation>
    </message>
    <message>
      <source>#102</source>
      <translation>Click “Sena”. On the right you see each face before you take it.</translation>
    </message>
    <message>
      <source>#103</source>
      <translation>Click “Toma”.</translation>
    </message>
    <message>
      <source>#104</source>
      <translation>Type his answer, such as Strike now, before they wake! Then click “Next”.</translation>
    </message>
    <message>
      <source>#105</source>
      <translation>This “Speaker” may stay empty: by the face everybody knows him.</translation>
    </message>
    <message>
      <source>#106</source>
      <translation>Click “Battle test…”. Now you see both events.</translation>
    </message>
    <message>
      <source>#107</source>
      <translation>Attack the warden, turn by turn. In the third turn they fall asleep, and Mila speaks.</translation>
    </message>
    <message>
      <source>#108</source>
      <translation>When half of his HP are gone, the ground shakes, and he gets 30 back. Then click “Next”.</translation>
    </message>
    <message>
      <source>#109</source>
      <translation>Type 8, which is nearer to the Mila that comes here in the game.</translation>
    </message>
    <message>
      <source>#110</source>
      <translation>See whether she can win alone; she may need friends. Esc leaves the battle.</translation>
    </message>
    <message>
      <source>#111</source>
      <translation>Click “OK” to keep the troop and its events.</translation>
    </message>
    <message>
      <source>#112</source>
      <translation>The warden on the map needs no change: his event has named this troop all along.</translation>
    </message>
    <message>
      <source>#113</source>
      <translation>“Play” leads to the warden as well, but it is a long way: village, forest, lever, mine.</translation>
    </message>
    <message>
      <source>#114</source>
      <translation>Click “Save” to write enemies, state and troop into the project's folder.</translation>
    </message>
    <message>
      <source>#115</source>
      <translation>Done! You can put enemies together and let things happen in a battle.</translation>
    </message>
    <message>
      <source>#116</source>
      <translation>Lesson 18 stages a scene that plays by itself. Click “Next” to finish.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep18</name>
    <message>
      <source>#1</source>
      <translation>In this lesson you stage the last scene, in four parts.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with all but the end? “No” opens one with a lamp's stand on the hilltop.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The whole story but its end will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The story is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>Part 1: the way up. Click “Amberfield”, where it begins.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>The arrow points at cells of the map now. If the zoom is not 100 %, click “Full size”.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click “Events” to see and make events.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>The path ends here in the west. Double-click this cell to make the way up.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Without a picture the event is not seen. Players just walk on along the path.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Choose “Touched by the player”, as with a door. Then click “Next”.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>Double-click “+” to add a command.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click the “Scene” tab.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>Click “Transfer”. It leads to another place.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>Click “OK”.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>Click “Choose…” to choose the place on a map.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>Click “Hilltop”.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click the lower end of the path, one cell above the edge of the map.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>“Facing” stays as it is: whoever arrives goes on looking the same way.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>Click “OK” to keep the command.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>Click “Copy page”. The way back will be much the same.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>Click “OK”. The way up is there.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>The path is two cells wide: later you can copy the way with a right click, “Copy event”.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Click “Hilltop”. Whoever comes up has to come down again.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>Double-click this cell, where the path leaves the map.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>Click “Paste page”. The copy comes with its command and with its way to start.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>The copy is page 2. It counts, because it comes last.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>It still leads up the hill. Double-click the command to change that.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>Click “Choose…” again.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>Click “Amberfield”.</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Click the path, one cell from its western end. Then click “Next”.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>Not on the way up itself, though: column 0 would lead right back to the hill.</translation>
    </message>
    <message>
      <source>#35</source>
      <translation>Click “OK” to take this cell.</translation>
    </message>
    <message>
      <source>#36</source>
      <translation>Click “OK”. The command leads back to the village now.</translation>
    </message>
    <message>
      <source>#37</source>
      <translation>Click “OK”. Now there is a way back, too.</translation>
    </message>
    <message>
      <source>#38</source>
      <translation>Part 2: the words. Double-click this free cell. The event of the scene goes here.</translation>
    </message>
    <message>
      <source>#39</source>
      <translation>Nobody sees this event. It tells all others what to do, like a director.</translation>
    </message>
    <message>
      <source>#40</source>
      <translation>Choose switch 5 at “Switch”: the battle against the warden turns it on.</translation>
    </message>
    <message>
      <source>#41</source>
      <translation>Choose “By itself”: the scene begins at once, while the player watches. Then click “Next”.</translation>
    </message>
    <message>
      <source>#42</source>
      <translation>Mila is the first to speak. Double-click “+”.</translation>
    </message>
    <message>
      <source>#43</source>
      <translation>Double-click “Show message”.</translation>
    </message>
    <message>
      <source>#44</source>
      <translation>Click “Face…”. In a scene, faces show who speaks.</translation>
    </message>
    <message>
      <source>#45</source>
      <translation>All faces are in this list. In this scene Mila, Toma and the Elder speak.</translation>
    </message>
    <message>
      <source>#46</source>
      <translation>Mila speaks first. Click “Mila”.</translation>
    </message>
    <message>
      <source>#47</source>
      <translation>Click “OK”. Her face will be beside her words.</translation>
    </message>
    <message>
      <source>#48</source>
      <translation>Type her words, such as Look, the whole village! Then click “Next”.</translation>
    </message>
    <message>
      <source>#49</source>
      <translation>Click “OK” to keep her message.</translation>
    </message>
    <message>
      <source>#50</source>
      <translation>Toma answers. Double-click the new “+”.</translation>
    </message>
    <message>
      <source>#51</source>
      <translation>Double-click “Show message” again.</translation>
    </message>
    <message>
      <source>#52</source>
      <translation>Click “Face…”.</translation>
    </message>
    <message>
      <source>#53</source>
      <translation>Click “Toma”.</translation>
    </message>
    <message>
      <source>#54</source>
      <translation>Type his words, such as Soon it will be bright. Then click “Next”.</translation>
    </message>
    <message>
      <source>#55</source>
      <translation>Click “OK” to keep his answer.</translation>
    </message>
    <message>
      <source>#56</source>
      <translation>The Elder has the last word. Double-click “+”.</translation>
    </message>
    <message>
      <source>#57</source>
      <translation>Click “Elder”.</translation>
    </message>
    <message>
      <source>#58</source>
      <translation>Type his thanks, such as You brought the light home. Then click “Next”.</translation>
    </message>
    <message>
      <source>#59</source>
      <translation>Click “OK”. All three have spoken now.</translation>
    </message>
    <message>
      <source>#60</source>
      <translation>Click the last message. It is the Elder's; the other two come before it.</translation>
    </message>
    <message>
      <source>#61</source>
      <translation>Part 3: the movement. After these words Mila walks to the lamp. Double-click “+”.</translation>
    </message>
    <message>
      <source>#62</source>
      <translation>Click “Movement route”. It lets somebody walk.</translation>
    </message>
    <message>
      <source>#63</source>
      <translation>Double-click it to add it to the scene.</translation>
    </message>
    <message>
      <source>#64</source>
      <translation>Choose “Player”, who is Mila.</translation>
    </message>
    <message>
      <source>#65</source>
      <translation>Click “Edit…” to lay down the way.</translation>
    </message>
    <message>
      <source>#66</source>
      <translation>Click “Up” five times: it is five cells to the lamp. Then click “Next”.</translation>
    </message>
    <message>
      <source>#67</source>
      <translation>Click “Switch on…”. A switch will light the lamp when she is there.</translation>
    </message>
    <message>
      <source>#68</source>
      <translation>Click “…” to choose a switch. You need a new one.</translation>
    </message>
    <message>
      <source>#69</source>
      <translation>Click “Change maximum…”.</translation>
    </message>
    <message>
      <source>#70</source>
      <translation>Type 6 and press Enter.</translation>
    </message>
    <message>
      <source>#71</source>
      <translation>Click the new switch, the sixth.</translation>
    </message>
    <message>
      <source>#72</source>
      <translation>Type a name, such as Lamp returned, and press Enter.</translation>
    </message>
    <message>
      <source>#73</source>
      <translation>Click “OK”. The switch comes last in the route.</translation>
    </message>
    <message>
      <source>#74</source>
      <translation>Click “Preview…” to see the way.</translation>
    </message>
    <message>
      <source>#75</source>
      <translation>The way goes from the ring to the disc. In the game it begins where Mila stands.</translation>
    </message>
    <message>
      <source>#76</source>
      <translation>Click “Close”.</translation>
    </message>
    <message>
      <source>#77</source>
      <translation>With the check mark here, the next command waits until she has arrived.</translation>
    </message>
    <message>
      <source>#78</source>
      <translation>Click “OK” to keep the route.</translation>
    </message>
    <message>
      <source>#79</source>
      <translation>Part 4: the end. When the lamp burns, there is music. Double-click “+”.</translation>
    </message>
    <message>
      <source>#80</source>
      <translation>Click the “Audio” tab.</translation>
    </message>
    <message>
      <source>#81</source>
      <translation>Click “Play music”.</translation>
    </message>
    <message>
      <source>#82</source>
      <translation>Click “Choose…” to see all pieces.</translation>
    </message>
    <message>
      <source>#83</source>
      <translation>Click “Home”: the light is back where it belongs.</translation>
    </message>
    <message>
      <source>#84</source>
      <translation>Click “OK” to take this music.</translation>
    </message>
    <message>
      <source>#85</source>
      <translation>A lower “Volume” would make the music softer. For the end it can stay as it is.</translation>
    </message>
    <message>
      <source>#86</source>
      <translation>Words, movement, music: the scene is complete from top to bottom.</translation>
    </message>
    <message>
      <source>#87</source>
      <translation>The scene must not begin again. Click “New page”.</translation>
    </message>
    <message>
      <source>#88</source>
      <translation>Choose your new switch, the last one, as a condition. Then click “Next”.</translation>
    </message>
    <message>
      <source>#89</source>
      <translation>Once the lamp burns, this empty page counts, and nothing happens any more.</translation>
    </message>
    <message>
      <source>#90</source>
      <translation>Click “OK”. Only the lamp itself is left.</translation>
    </message>
    <message>
      <source>#91</source>
      <translation>Double-click the stand of the lamp.</translation>
    </message>
    <message>
      <source>#92</source>
      <translation>This page shows the stand without light. A second one will let it shine.</translation>
    </message>
    <message>
      <source>#93</source>
      <translation>Click “New page”.</translation>
    </message>
    <message>
      <source>#94</source>
      <translation>Choose switch 6 here, too. Then click “Next”.</translation>
    </message>
    <message>
      <source>#95</source>
      <translation>Click the empty field below “Picture”.</translation>
    </message>
    <message>
      <source>#96</source>
      <translation>Click the “Things” tab.</translation>
    </message>
    <message>
      <source>#97</source>
      <translation>Page 1 has the picture “Lamp stand”. Page 2 takes the one below it.</translation>
    </message>
    <message>
      <source>#98</source>
      <translation>Click “Lit lamp”.</translation>
    </message>
    <message>
      <source>#99</source>
      <translation>Click “Moves its feet while standing”: with a lamp it makes the flame flicker.</translation>
    </message>
    <message>
      <source>#100</source>
      <translation>Click “Keeps its direction”, as a lamp does not turn to anybody.</translation>
    </message>
    <message>
      <source>#101</source>
      <translation>Click “OK”. The story has its end.</translation>
    </message>
    <message>
      <source>#102</source>
      <translation>Click “Save” to write the scene into the project's folder.</translation>
    </message>
    <message>
      <source>#103</source>
      <translation>Done! Your heroes speak and walk by themselves. Lesson 19 adds the title screen.</translation>
    </message>
  </context>
  <context>
    <name>TutorialStep19</name>
    <message>
      <source>#1</source>
      <translation>In this last lesson your game gets a title screen of its own.
Click “Next” to begin.</translation>
    </message>
    <message>
      <source>#2</source>
      <translation>Make a new project, with the whole game? “No” opens one of yours, such as lesson 18's.</translation>
    </message>
    <message>
      <source>#3</source>
      <translation>Click “New” to make the project.</translation>
    </message>
    <message>
      <source>#4</source>
      <translation>Click “OK”. The whole story of the lamp will be in the project.</translation>
    </message>
    <message>
      <source>#5</source>
      <translation>The game is being copied. The lesson then goes on by itself.</translation>
    </message>
    <message>
      <source>#6</source>
      <translation>Click “Open” to see your projects.</translation>
    </message>
    <message>
      <source>#7</source>
      <translation>Choose your project in the list and click “Open”.</translation>
    </message>
    <message>
      <source>#8</source>
      <translation>A game begins with its title screen. Yours has only the project's name so far.</translation>
    </message>
    <message>
      <source>#9</source>
      <translation>Click “Database”. The title screen belongs to the game as a whole.</translation>
    </message>
    <message>
      <source>#10</source>
      <translation>Click the last tab, “System”. It is about the whole game. Then click “Next”.</translation>
    </message>
    <message>
      <source>#11</source>
      <translation>Type the name of your game, such as The Dawn Lamp. Then click “Next”.</translation>
    </message>
    <message>
      <source>#12</source>
      <translation>Click “Show the game's title”, so that the name is on the title screen. Then click “Next”.</translation>
    </message>
    <message>
      <source>#13</source>
      <translation>Click the large field below “Title screen” to choose a picture for it.</translation>
    </message>
    <message>
      <source>#14</source>
      <translation>The lamp is what the story is about: double-click “The lamp” to take it.</translation>
    </message>
    <message>
      <source>#15</source>
      <translation>Click “Commands of the title screen…” to see what players can choose there.</translation>
    </message>
    <message>
      <source>#16</source>
      <translation>“Add” would put a command of your own into the list, “Up” and “Down” would move it.</translation>
    </message>
    <message>
      <source>#17</source>
      <translation>What the command does would be chosen here, “Credits” for instance.</translation>
    </message>
    <message>
      <source>#18</source>
      <translation>In this field it could get words that suit your story.</translation>
    </message>
    <message>
      <source>#19</source>
      <translation>An empty list stands for “New game”, “Continue” and “Quit”. That is all that you need.</translation>
    </message>
    <message>
      <source>#20</source>
      <translation>Click “OK”. The list stays empty.</translation>
    </message>
    <message>
      <source>#21</source>
      <translation>Click “OK” to keep name and picture.</translation>
    </message>
    <message>
      <source>#22</source>
      <translation>By now your game has many events. Click “Find events”: none gets lost.</translation>
    </message>
    <message>
      <source>#23</source>
      <translation>All events of your game are in this list. A part of a name, typed above, makes it shorter.</translation>
    </message>
    <message>
      <source>#24</source>
      <translation>With “Switch” or “Variable” here you find out which events use one.</translation>
    </message>
    <message>
      <source>#25</source>
      <translation>Click this row. It tells the map, the event and the cell where it stands.</translation>
    </message>
    <message>
      <source>#26</source>
      <translation>Double-click it to see the event on its map.</translation>
    </message>
    <message>
      <source>#27</source>
      <translation>The event is marked, and its map is chosen here. All these places are parts of your game.</translation>
    </message>
    <message>
      <source>#28</source>
      <translation>If your story grows, a right click on a map and “New map…” add more of them.</translation>
    </message>
    <message>
      <source>#29</source>
      <translation>Click “Save”. With that, your game is complete.</translation>
    </message>
    <message>
      <source>#30</source>
      <translation>Click “Play” and see how your game begins.</translation>
    </message>
    <message>
      <source>#31</source>
      <translation>There it is: the name of your game, your picture, and the three commands.</translation>
    </message>
    <message>
      <source>#32</source>
      <translation>You can make maps, people, battles and scenes now, and a game of them all. Well done!</translation>
    </message>
    <message>
      <source>#33</source>
      <translation>Let others play it, watch them, and change what they stumble over.</translation>
    </message>
    <message>
      <source>#34</source>
      <translation>This was the last lesson. Choose “New game” and play on to the end!</translation>
    </message>
  </context>
</TS>
