<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The finishing menu and its summary -->
    <message>
        <source>No Staple Value</source>
        <translation>ステープルなし</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>パンチなし</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>折りなし</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>製本…</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>二つ折り製本</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>中とじ製本</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>製本レイアウト</translation>
    </message>
    <message>
        <source>Covers Menu Option</source>
        <translation>表紙(&amp;V)…</translation>
    </message>
    <message>
        <source>Covers Tip</source>
        <translation>文書の前後に付ける、別の用紙の表紙</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>仕切り紙…</translation>
    </message>
    <message>
        <source>Separators Tip</source>
        <translation>OHPフィルムの間に入れる紙</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>仕切り紙</translation>
    </message>
    <!-- The menu of further finishing -->
    <message>
        <source>1 Staple...</source>
        <translation>ステープル(1か所)…</translation>
    </message>
    <message>
        <source>2 Staples...</source>
        <translation>ステープル(2か所)…</translation>
    </message>
    <message>
        <source>Hole Punch...</source>
        <translation>パンチ…</translation>
    </message>
    <message>
        <source>Fold...</source>
        <translation>折り…</translation>
    </message>
    <message>
        <source>Advanced Fold...</source>
        <translation>折りの詳細…</translation>
    </message>
    <message>
        <source>Z Fold...</source>
        <translation>Z折り…</translation>
    </message>
    <message>
        <source>Bind...</source>
        <translation>テープ製本…</translation>
    </message>
    <message>
        <source>Offset...</source>
        <translation>オフセット排出…</translation>
    </message>
    <message>
        <source>Custom Finishing...</source>
        <translation>仕上げの指示…</translation>
    </message>
    <!-- Staples -->
    <message>
        <source>1 Staple Title</source>
        <translation>ステープル(1か所)</translation>
    </message>
    <message>
        <source>2 Staples Title</source>
        <translation>ステープル(2か所)</translation>
    </message>
    <message>
        <source>Staples:</source>
        <translation>ステープル(&amp;S):</translation>
    </message>
    <message>
        <source>No Staple Hint</source>
        <translation>部ごとのステープルをしません。</translation>
    </message>
    <message>
        <source>1 Staple Hint</source>
        <translation>各部の角を1か所とじます。</translation>
    </message>
    <message>
        <source>2 Staples Hint</source>
        <translation>各部の1辺を2か所とじます。</translation>
    </message>
    <message>
        <source>Staple Limits</source>
        <translation>OHPフィルム、ラベル紙、封筒はステープルできません。ステープルを選ぶと、折りは解除されます。</translation>
    </message>
    <!-- Holes -->
    <message>
        <source>Hole Punch Title</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Holes:</source>
        <translation>穴(&amp;H):</translation>
    </message>
    <message>
        <source>NoHolePunch Hint</source>
        <translation>パンチ穴をあけません。</translation>
    </message>
    <message>
        <source>HolePunch Hint</source>
        <translation>機器に設定されている穴の数であけます。</translation>
    </message>
    <message>
        <source>2 Hole Punch Hint</source>
        <translation>用紙の1辺に2つの穴をあけます。</translation>
    </message>
    <message>
        <source>3 Hole Punch Hint</source>
        <translation>用紙の1辺に3つの穴をあけます。</translation>
    </message>
    <message>
        <source>4 Hole Punch Hint</source>
        <translation>用紙の1辺に4つの穴をあけます。</translation>
    </message>
    <message>
        <source>Hole Punch Limits</source>
        <translation>OHPフィルム、ラベル紙、タブ紙、封筒はパンチできません。パンチを選ぶと、折りは解除されます。</translation>
    </message>
    <!-- Folds -->
    <message>
        <source>Fold Title</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Advanced Fold Title</source>
        <translation>折りの詳細</translation>
    </message>
    <message>
        <source>Z Fold Title</source>
        <translation>Z折り</translation>
    </message>
    <message>
        <source>Fold:</source>
        <translation>折り(&amp;F):</translation>
    </message>
    <message>
        <source>No Fold Hint</source>
        <translation>用紙を折らずに排出します。</translation>
    </message>
    <message>
        <source>BiFoldNoStaple Hint</source>
        <translation>中央で1回折り、ステープルはしません。ステープルやパンチと組み合わせることはできません。</translation>
    </message>
    <message>
        <source>Booklet FoldStaple Hint</source>
        <translation>中央で1回折り、折り目をステープルでとじます。ほかのステープルやパンチと組み合わせることはできません。</translation>
    </message>
    <message>
        <source>FoldCFold Hint</source>
        <translation>封筒に入れる手紙のように、一方を内側に折り込んで三つに折ります。ステープルやパンチと組み合わせることはできません。</translation>
    </message>
    <message>
        <source>FoldZFold Hint</source>
        <translation>引くだけで開けるように、Z字形に三つに折ります。ステープルと組み合わせることはできません。</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet Hint</source>
        <translation>用紙の半分を折り返し、大きな用紙を半分のサイズの用紙にそろえます。</translation>
    </message>
    <message>
        <source>Fold Limits</source>
        <translation>OHPフィルム、ラベル紙、タブ紙、封筒、厚紙は折ることができません。</translation>
    </message>
    <!-- Binding -->
    <message>
        <source>Bind Title</source>
        <translation>テープ製本</translation>
    </message>
    <message>
        <source>Bind:</source>
        <translation>とじ位置(&amp;B):</translation>
    </message>
    <message>
        <source>No Binding</source>
        <translation>とじなし</translation>
    </message>
    <message>
        <source>Bind Left Edge</source>
        <translation>左辺</translation>
    </message>
    <message>
        <source>Bind Right Edge</source>
        <translation>右辺</translation>
    </message>
    <message>
        <source>Bind Top Edge</source>
        <translation>上辺</translation>
    </message>
    <message>
        <source>No Binding Hint</source>
        <translation>部ごとのテープ製本をしません。</translation>
    </message>
    <message>
        <source>Bind Left Edge Hint</source>
        <translation>各部の左辺をテープでとじます。左から右に読む文書に使います。</translation>
    </message>
    <message>
        <source>Bind Right Edge Hint</source>
        <translation>各部の右辺をテープでとじます。右から左に読む文書に使います。</translation>
    </message>
    <message>
        <source>Bind Top Edge Hint</source>
        <translation>メモ帳のように、各部の上辺をテープでとじます。</translation>
    </message>
    <message>
        <source>Bind Limits</source>
        <translation>1部の用紙は、すべて同じサイズでなければなりません。</translation>
    </message>
    <!-- What a choice does besides -->
    <message>
        <source>Finishing Replaced</source>
        <translation>ジョブには「%1」が設定されています。［OK］を押すと置き換わります。</translation>
    </message>
    <message>
        <source>Finishing Ends Booklet</source>
        <translation>［OK］を押すと、製本レイアウトはオフになります。</translation>
    </message>
    <!-- Offset -->
    <message>
        <source>Offset Title</source>
        <translation>オフセット排出</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>オフセット排出(&amp;O):</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット排出</translation>
    </message>
    <message>
        <source>No Offset</source>
        <translation>オフセットなし</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>部ごと</translation>
    </message>
    <message>
        <source>Offset Subsets</source>
        <translation>サブセットごと</translation>
    </message>
    <message>
        <source>Offset Sets and Subsets</source>
        <translation>部とサブセットごと</translation>
    </message>
    <message>
        <source>Offset Subsets Switch</source>
        <translation>各部をサブセットに分ける(&amp;D)</translation>
    </message>
    <message>
        <source>Pages per Subset:</source>
        <translation>サブセットのページ数(&amp;P):</translation>
    </message>
    <message>
        <source>Pages per Subset</source>
        <translation>サブセットのページ数</translation>
    </message>
    <message>
        <source>Offset Hint</source>
        <translation>「部」は文書の1部ずつ、「サブセット」はそれを分けたまとまりです。前のものと少しずらして排出します。ページ数を0にすると、機器が決めます。</translation>
    </message>
    <!-- Custom finishing -->
    <message>
        <source>Custom Finishing Title</source>
        <translation>仕上げの指示</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>仕上げの指示(&amp;F):</translation>
    </message>
    <message>
        <source>Custom Finishing</source>
        <translation>仕上げの指示</translation>
    </message>
    <message>
        <source>Remove Custom Finishing</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Custom Finishing Hint</source>
        <translation>機器のオペレーターへの指示を自由に入力します。ジョブと一緒に送られます。255文字まで入力でき、［OK］を押すには1文字以上必要です。</translation>
    </message>
    <!-- Separators -->
    <message>
        <source>Separators Title</source>
        <translation>OHPフィルムの仕切り紙</translation>
    </message>
    <message>
        <source>Separator Hint</source>
        <translation>仕切り紙は、OHPフィルムどうしが貼り付かないように間に入れる紙です。</translation>
    </message>
    <message>
        <source>No Separators on This Device</source>
        <translation>この機器では、OHPフィルムの間に仕切り紙を入れられません。</translation>
    </message>
    <message>
        <source>Separators:</source>
        <translation>仕切り紙(&amp;S):</translation>
    </message>
    <message>
        <source>Separator Source:</source>
        <translation>給紙トレイ(&amp;P):</translation>
    </message>
    <message>
        <source>Separator Source</source>
        <translation>給紙トレイ</translation>
    </message>
    <message>
        <source>Separator Color:</source>
        <translation>図の中の色(&amp;I):</translation>
    </message>
    <message>
        <source>Separator Color</source>
        <translation>図の中の色</translation>
    </message>
    <message>
        <source>Separator Color Hint</source>
        <translation>図の色だけが変わります。実際の色は、給紙トレイの用紙で決まります。</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Offset with Subsets in Words</source>
        <translation>%1、サブセットのページ数: %2</translation>
    </message>
    <message>
        <source>Bind Absent in Words</source>
        <translation>%1（この機器にはテープ製本ユニットがないため、とじられません）</translation>
    </message>
    <message>
        <source>Slip Sheets in Words</source>
        <translation>スリップシート:</translation>
    </message>
    <message>
        <source>Finished Set Spoken</source>
        <translation>仕上がりの図</translation>
    </message>
    <message>
        <source>1 Staple in Corner</source>
        <translation>左上隅に1か所のステープル</translation>
    </message>
    <message>
        <source>2 Staples at Edge</source>
        <translation>左辺に2か所のステープル</translation>
    </message>
    <message>
        <source>Multiple Staples at Edge</source>
        <translation>左辺に複数のステープル</translation>
    </message>
    <message>
        <source>2 Holes at Edge</source>
        <translation>左辺に2穴</translation>
    </message>
    <message>
        <source>3 Holes at Edge</source>
        <translation>左辺に3穴</translation>
    </message>
    <message>
        <source>4 Holes at Edge</source>
        <translation>左辺に4穴</translation>
    </message>
    <message>
        <source>Holes Set at Device</source>
        <translation>穴は機器の設定どおり</translation>
    </message>
    <message>
        <source>Tape at Left Edge</source>
        <translation>左辺をテープでとじる</translation>
    </message>
    <message>
        <source>Tape at Right Edge</source>
        <translation>右辺をテープでとじる</translation>
    </message>
    <message>
        <source>Tape at Top Edge</source>
        <translation>上辺をテープでとじる</translation>
    </message>
    <message>
        <source>Sets Lie Offset</source>
        <translation>部ごとにオフセット排出</translation>
    </message>
    <message>
        <source>Subsets Lie Offset</source>
        <translation>サブセットごとにオフセット排出</translation>
    </message>
    <message>
        <source>Sets and Subsets Lie Offset</source>
        <translation>部とサブセットごとにオフセット排出</translation>
    </message>
</context>
</TS>
