// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The statements that the system runs, with ordinary values in the open places. Parts that are joined in
/// many ways stand by themselves.
namespace rbt::test {

// clang-format off
/// The classification of the schedule at load, in its order.
inline constexpr std::string_view kPreparation[] = {
    R"sql(UPDATE 加工テーブル SET 予備3 = 0 )sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 1 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 IN(1) AND 形状No IN(1,138,139,140,143))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 2 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 IN(1) AND (形状No NOT IN(1,138,139,140,143) OR (形状No>200 AND 予備2=4)) )sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 NOT IN(1) AND 形状No IN(1,138,139,140,143))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 NOT IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND (形状No IN(1,138,139,140,143) OR (形状No>200 AND 予備2=4)))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 NOT IN(1) AND 形状No NOT IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 NOT IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 形状No NOT IN(1,138,139,140,143))sql",
    R"sql(UPDATE 加工テーブル SET 予備5 = 寸法1 & "," & 寸法2 & "," & 寸法3 & "," & 寸法4 & "," & 寸法5 & "," & 寸法6 & "," & 寸法7 & "," & 寸法8 & "," & 寸法9 & "," & 寸法10 & ",")sql",
    R"sql(UPDATE 加工テーブル SET 予備2=4 WHERE ((形状No Between 138 And 143) OR (形状No Between 162 And 163) OR (形状No Between 166 And 177)))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=1 WHERE (IsNull(予備2) Or 予備2 = 0))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=2 WHERE (太さ = 6 Or 太さ = 7 Or 太さ = 9 Or 太さ = 11 Or 太さ = 12 ))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=2 WHERE (太さ <> 16 AND 予備2 = 2))sql",
    R"sql(UPDATE 加工テーブル SET 圧接太さ=太さ WHERE (not isnull(太さ) AND 圧接>0 AND 圧接太さ=0))sql",
};

/// The same where only shape 1 counts as straight.
inline constexpr std::string_view kPreparationOfOldKinds[] = {
    R"sql(UPDATE 加工テーブル SET 予備3 = 0 )sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 1 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 IN(1) AND 形状No IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 2 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 IN(1) AND 形状No NOT IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 NOT IN(1) AND 形状No IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 3 WHERE 伸切寸 NOT IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 形状No IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 伸本定 NOT IN(1) AND 形状No NOT IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備3 = 4 WHERE 伸切寸 NOT IN(3500,4000,4500,5000,5500,6000,6500,7000,7500,8000,8500,9000,9500,10000,10500,11000,11500,12000)AND 形状No NOT IN(1))sql",
    R"sql(UPDATE 加工テーブル SET 予備5 = 寸法1 & "," & 寸法2 & "," & 寸法3 & "," & 寸法4 & "," & 寸法5 & "," & 寸法6 & "," & 寸法7 & "," & 寸法8 & "," & 寸法9 & "," & 寸法10 & ",")sql",
    R"sql(UPDATE 加工テーブル SET 予備2=4 WHERE ((形状No Between 138 And 143) OR (形状No Between 162 And 163) OR (形状No Between 166 And 177)))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=1 WHERE (IsNull(予備2) Or 予備2 = 0))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=2 WHERE (太さ = 6 Or 太さ = 7 Or 太さ = 9 Or 太さ = 11 Or 太さ = 12 ))sql",
    R"sql(UPDATE 加工テーブル SET 予備2=2 WHERE (太さ <> 16 AND 予備2 = 2))sql",
    R"sql(UPDATE 加工テーブル SET 圧接太さ=太さ WHERE (not isnull(太さ) AND 圧接>0 AND 圧接太さ=0))sql",
};

/// Site, references, schedule: look-ups, repairs, ranges.
inline constexpr std::string_view kStatements[] = {
    R"sql(SELECT *  FROM 重量集計)sql",
    R"sql(SELECT *  FROM 重量集計名称)sql",
    R"sql(SELECT * FROM 形状テーブル)sql",
    R"sql(SELECT * FROM 登録名 ORDER BY 登録AN)sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR (形状No Between 164 And 169) OR (形状No Between 175 And 176))sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 形状No=87)sql",
    R"sql(SELECT * FROM 加工テーブル ORDER BY 頁, 行 )sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 形状No Between 138 And 143 ORDER BY 形状No )sql",
    R"sql(UPDATE 加工テーブル SET 予備2 = 5 WHERE 部位=3 AND (名称='縦ｽﾘｯﾄ筋　' OR 名称='横ｽﾘｯﾄ筋　'))sql",
    R"sql(UPDATE 加工テーブル SET 階 = 78 WHERE 階 is null )sql",
    R"sql(UPDATE 加工テーブル SET 部位 = 0 WHERE 部位 is null )sql",
    R"sql(ALTER TABLE 加工テーブル ADD COLUMN 登録名形状別作業用 long;)sql",
    R"sql(ALTER TABLE 登録名 ADD COLUMN 取付重量合計 Currency;)sql",
    R"sql(ALTER TABLE 登録名 ADD COLUMN 定尺重量合計 Currency;)sql",
    R"sql(UPDATE 登録名 SET 取付重量合計=0 WHERE IsNull(取付重量合計))sql",
    R"sql(UPDATE 登録名 SET 定尺重量合計=0 WHERE IsNull(定尺重量合計))sql",
    R"sql(SELECT [番号], [工事名], [データパス], [取引先コード] FROM 工事テーブル WHERE データパス = 'GENBA001.MDB')sql",
    R"sql(SELECT 長い工事名,工事名区切り文字数 FROM 工事テーブル WHERE データパス="GENBA001.MDB")sql",
    R"sql(SELECT メーカーNo FROM 工事テーブル WHERE データパス="GENBA001.MDB")sql",
    R"sql(SELECT * FROM 工事テーブル WHERE データパス = 'GENBA001.MDB')sql",
    R"sql(SELECT * FROM 工事テーブル WHERE 番号 = 1)sql",
    R"sql(SELECT [会社コード], [会社名] FROM T_取引先 WHERE [会社コード] = 1)sql",
    R"sql(SELECT [SDコード], [SD名] FROM T_SD WHERE SDコード = 1)sql",
    R"sql(SELECT [番号], [部位名], [記号] FROM 部位名テーブル WHERE 番号 = 1)sql",
    R"sql(SELECT [番号], [部位名], [記号] FROM 部位名２テーブル WHERE 番号 = 1)sql",
    R"sql(SELECT * FROM 固定定尺テーブル WHERE 太さ = 19 AND 開始切り寸 = 4000 AND 終了切り寸 = 0  AND 材質 = 1 )sql",
    R"sql(SELECT * FROM 固定定尺テーブル WHERE 太さ = 19 AND 開始切り寸 <= 4000 AND 終了切り寸 >= 4000 AND 材質 = 1 )sql",
    R"sql(SELECT * FROM 固定定尺テーブル WHERE 太さ = 0 AND 開始切り寸 = 4000 AND 終了切り寸 =  0 AND 材質 = 1 )sql",
    R"sql(SELECT 材質,径,sum(全重量) as 重量 FROM スパイラル  GROUP BY 材質,径 ORDER BY 材質,径)sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 予備2=3)sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 頁 = 3 AND 行 = 5)sql",
    R"sql(SELECT 行No, 頁, 行 FROM 加工テーブル WHERE 頁 = 3)sql",
    R"sql(SELECT 行No, 頁, 行 FROM 加工テーブル ORDER BY 行No)sql",
    R"sql(SELECT 行No, 頁, 行,行No FROM 加工テーブル ORDER BY 行No,頁,行)sql",
    R"sql(SELECT Min(形状No) From 加工テーブル  )sql",
    R"sql(SELECT Max(形状No) From 加工テーブル  WHERE 行No Between 1 And 400)sql",
    R"sql(SELECT 予備2 FROM 加工テーブル WHERE 予備2=3 AND 形状No>=1 AND 形状No<=200)sql",
    R"sql(SELECT [階] FROM 加工テーブル WHERE 階 = 76)sql",
    R"sql(SELECT [階] FROM 加工テーブル WHERE 階 = 78 AND 太さ <> 0)sql",
    R"sql(SELECT Min(階) AS 最小階 FROM 加工テーブル)sql",
    R"sql(SELECT * FROM 加工テーブル WHERE 階 =0)sql",
    R"sql(SELECT MIN(階) AS 最小階, MAX(階) AS 最大階 FROM 加工テーブル WHERE 階 BETWEEN -5 AND 78)sql",
    R"sql(SELECT MIN(階) AS 最小階, MAX(階) AS 最大階 FROM 加工テーブル WHERE 階 BETWEEN -5 AND 75)sql",
    R"sql(SELECT * FROM 登録名 WHERE 表示番号=1 ORDER BY 登録AN)sql",
    R"sql(SELECT * FROM 登録名 WHERE 表示番号=1 ORDER BY 登録AN)sql",
    R"sql(SELECT * FROM 登録名 ORDER BY 登録AN )sql",
    R"sql(SELECT * FROM 登録名 ORDER BY 登録名 )sql",
    R"sql(SELECT 登録AN,登録名,定尺重量合計,取付重量合計 FROM 登録名 ORDER BY 登録AN)sql",
};

/// The summary of the registered names, in its order.
inline constexpr std::string_view kNameSummary[] = {
    R"sql(CREATE TABLE WorkTable (ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 太さ LONG, 材質 LONG, 伸定尺 Double, 定尺基準重量 Currency, S伸切寸 Currency, S伸定_本 LONG, 単位重量 Currency, 取付重量 Currency, 定尺重量 Currency, 作業１ Double))sql",
    R"sql(CREATE TABLE WorkSumTable (ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 材質 LONG, 太さ LONG, 取付重量合計 Currency, 定尺重量合計 Currency, 作業１ Double))sql",
    R"sql(CREATE TABLE WorkSumResultsTable (ID AUTOINCREMENT, 登録AN LONG, 登録名 TEXT(50), 取付重量合計 Currency, 定尺重量合計 Currency, 作業１ Double, CONSTRAINT WorkSumResultsTable_pkey PRIMARY KEY(ID));)sql",
    R"sql(UPDATE 登録名 SET 表示番号=0)sql",
    R"sql(INSERT into WorkTable(登録AN,太さ,S伸切寸,S伸定_本,伸定尺) SELECT 登録名,太さ,sum(伸切寸 * 合計),sum(伸総計),伸定尺 from 加工テーブル where 予備2<>2 group by 登録名,太さ,伸定尺)sql",
    R"sql(UPDATE WorkTAble SET 材質=1)sql",
    R"sql(INSERT into WorkTable(登録AN,太さ,S伸切寸,S伸定_本,伸定尺) SELECT 登録名,太さ,sum(伸切寸 * 合計),sum(伸総計),伸定尺 from 加工テーブル where 予備2=2 group by 登録名,太さ,伸定尺)sql",
    R"sql(UPDATE WorkTAble SET 材質=2 WHERE isnull(材質))sql",
    R"sql(DELETE 登録AN FROM WorkTable WHERE 登録AN Is Null)sql",
    R"sql(DELETE 登録AN FROM WorkTable WHERE 登録AN =0)sql",
    R"sql(UPDATE WorkTAble SET 定尺基準重量=11.9 WHERE (太さ=10 AND 伸定尺=12.0 AND (材質=1or 材質=3 OR 材質=0 OR IsNull(材質) OR 材質=4)))sql",
    R"sql(UPDATE WorkTAble SET 単位重量=0.56 WHERE (太さ=10 AND (材質<>2 or IsNull(材質))))sql",
    R"sql(UPDATE WorkTAble SET 単位重量=1.56 WHERE (太さ=16  AND (材質<>2 or IsNull(材質))))sql",
    R"sql(UPDATE WorkTAble SET 単位重量=15.9 WHERE (太さ=41  AND (材質<>2 or IsNull(材質))))sql",
    R"sql(UPDATE WorkTAble SET 単位重量=0.235 WHERE 太さ=6 AND 材質=2)sql",
    R"sql(UPDATE WorkTable SET 取付重量 = (S伸切寸*単位重量)/1000, 定尺重量 = S伸定_本*定尺基準重量)sql",
    R"sql(UPDATE WorkTable SET 取付重量 = 0 WHERE IsNull(取付重量))sql",
    R"sql(UPDATE WorkTable SET 定尺重量 = 0 WHERE IsNull(定尺重量))sql",
    R"sql(INSERT into WorkSumTable(登録AN,太さ,取付重量合計,定尺重量合計,材質) SELECT 登録AN,太さ,fix(Sum(取付重量)+0.5),Sum(fix(定尺重量+0.5)),材質 from WorkTable group by 登録AN,太さ,材質 )sql",
    R"sql(INSERT into WorkSumTable(登録AN,太さ,取付重量合計,定尺重量合計,材質) SELECT 登録AN,太さ,fix(Sum(S伸切寸*単位重量/1000)+0.5),Sum(fix(定尺重量+0.5)),材質 from WorkTable group by 登録AN,太さ,材質 )sql",
    R"sql(SELECT * FROM WorkSumTable WHERE 材質=1)sql",
    R"sql(UPDATE WorkSumTable SET 取付重量合計=120 WHERE ID=1)sql",
    R"sql(INSERT into WorkSumResultsTable(登録AN,取付重量合計,定尺重量合計) SELECT 登録AN,sum(取付重量合計),sum(定尺重量合計) from WorkSumTable group by 登録AN )sql",
    R"sql(SELECT * FROM WorkSumResultsTable ORDER BY 登録AN )sql",
    R"sql(UPDATE 登録名 SET 定尺重量合計=1200 ,取付重量合計=1188.5 WHERE 登録AN= 1)sql",
    R"sql(DROP TABLE WorkTable )sql",
    R"sql(DROP TABLE WorkSumTable )sql",
    R"sql(DROP TABLE WorkSumResultsTable )sql",
};

/// Saving, listing, loading, renaming and deleting a tally, in their order.
inline constexpr std::string_view kArchive[] = {
    R"sql(INSERT INTO 重量集計(列番号,太さ,ＳＤ, メーカー,材質,材料,[3500mm], [4000mm],[4500mm],[5000mm],[5500mm],[6000mm],[6500mm],[7000mm],[7500mm],[8000mm],[8500mm],[9000mm],[9500mm],[10000mm],[10500mm],[11000mm],[11500mm],[12000mm],[3500mm重量],[4000mm重量],[4500mm重量],[5000mm重量],[5500mm重量],[6000mm重量],[6500mm重量],[7000mm重量],[7500mm重量],[8000mm重量],[8500mm重量],[9000mm重量],[9500mm重量],[10000mm重量],[10500mm重量],[11000mm重量],[11500mm重量],[12000mm重量],定尺重量,取付重量,圧接,ネジ数,定着板数,切断,作成日,作成時間) VALUES(0,'10','SD345','東京製鐵',1,'異形',12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,1200,1188.5,3,NULL,0,7,'20240401','093000'))sql",
    R"sql(INSERT INTO 重量集計(列番号,太さ,ＳＤ, メーカー,材質,材料,[3500mm], [4000mm],[4500mm],[5000mm],[5500mm],[6000mm],[6500mm],[7000mm],[7500mm],[8000mm],[8500mm],[9000mm],[9500mm],[10000mm],[10500mm],[11000mm],[11500mm],[12000mm],[13000mm],[3500mm重量],[4000mm重量],[4500mm重量],[5000mm重量],[5500mm重量],[6000mm重量],[6500mm重量],[7000mm重量],[7500mm重量],[8000mm重量],[8500mm重量],[9000mm重量],[9500mm重量],[10000mm重量],[10500mm重量],[11000mm重量],[11500mm重量],[12000mm重量],[13000mm重量],定尺重量,取付重量,圧接,ネジ数,定着板数,切断,作成日,作成時間) VALUES(1,'13','SD345','東京製鐵',1,'異形',12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,12,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,143.25,1200,1188.5,3,NULL,0,7,'20240401','093000'))sql",
    R"sql(INSERT INTO 重量集計名称(作成日,作成時間,重量集計名称,集計区分,溶接閉鎖型,合計値変更,メモ１,メモ２,メモ３,定尺１３ｍ) VALUES('20240401','093000','異形  2024/04/01 09:30:00',0,0,0,'一次',NULL,NULL,0))sql",
    R"sql(SELECT 作成日,重量集計名称,メモ１ FROM 重量集計名称 WHERE 集計区分=0 AND 定尺１３ｍ=0 ORDER BY 作成日 DESC,作成時間 DESC)sql",
    R"sql(SELECT 作成日,作成時間 FROM 重量集計名称 WHERE 重量集計名称='異形  2024/04/01 09:30:00')sql",
    R"sql(SELECT 作成日,作成時間 FROM 重量集計名称 WHERE 重量集計名称='異形  2024/04/01 09:30:00' ORDER BY 作成日 DESC,作成時間 DESC)sql",
    R"sql(SELECT * FROM 重量集計名称 WHERE 重量集計名称='異形  2024/04/01 09:30:00')sql",
    R"sql(SELECT * FROM 重量集計 WHERE 作成日='20240401'AND 作成時間='093000' ORDER BY 列番号)sql",
    R"sql(INSERT INTO 階別重量集計(行No,階,太さ,SD,メーカー,材質,材質タイプ,材料,[部位１],[部位２],[部位１１],[圧接],[ネジ数],[定着板数],[切断],[定尺合計],[取付合計],[開始階],[終了階],[特別階],作成日,作成時間) VALUES(1,'1','10','','','異形',0,'',0,0,0,0,0,0,0,0,0,'1','3','','20240401','093000'))sql",
    R"sql(UPDATE 階別重量集計 SET 部位１=1234.5 WHERE 階='1' AND 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(SELECT * FROM 階部位重量集計 WHERE 作成日='20240401' AND 作成時間='093000' ORDER BY 行No)sql",
    R"sql(SELECT * FROM 階別重量集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(SELECT * FROM 部位別本重集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(SELECT * FROM 部位別重量集計 WHERE 作成日='20240401' AND 作成時間='093000' ORDER BY 太さ)sql",
    R"sql(UPDATE 重量集計名称 SET 重量集計名称='基礎まで' WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 重量集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 階部位重量集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 階別重量集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 部位別重量集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 部位別本重集計 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DELETE * FROM 重量集計名称 WHERE 重量集計名称='基礎まで')sql",
    R"sql(DELETE * FROM 重量集計名称 WHERE 作成日='20240401' AND 作成時間='093000')sql",
    R"sql(DROP INDEX PrimaryKey ON 重量集計名称)sql",
    R"sql(ALTER TABLE 重量集計名称 ADD CONSTRAINT 重量集計名称_pkey PRIMARY KEY(作成日,作成時間))sql",
    R"sql(DROP TABLE 重量集計)sql",
    R"sql(DROP TABLE 重量集計名称)sql",
};

/// The accumulation file.
inline constexpr std::string_view kAccumulation[] = {
    R"sql(CREATE TABLE T_hozon (SD名 TEXT(20), メーカー名 TEXT(20), 圧接本数 LONG, U圧接本数 LONG, U重量 Currency, U切寸 Currency, 定尺重量 Currency, 切寸重量 Currency, 定尺本数 LONG, 定着板数 LONG, カプラ数 LONG, 切断数 LONG))sql",
    R"sql(INSERT INTO T_hozon(SD名,メーカー名,圧接本数,U圧接本数,U重量,U切寸) VALUES('SD345','東京製鐵',12,0,0,0))sql",
    R"sql(UPDATE T_hozon SET 定尺重量=1200.5, 切寸重量=1188.25, 定尺本数=40 WHERE SD名='SD345')sql",
    R"sql(SELECT * FROM T_hozon)sql",
    R"sql(DELETE * FROM T_hozon)sql",
    R"sql(DROP TABLE T_hozon)sql",
};

inline constexpr std::string_view kFormClauses[] = {
    R"sql( AND 予備3 = 1)sql",
    R"sql( AND (予備3 = 4))sql",
    R"sql( AND 予備3 = 2)sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 4))sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 2))sql",
    R"sql( AND (予備3 = 2 OR 予備3 = 4))sql",
    R"sql( AND 予備3 = 3)sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 2 OR 予備3 = 4))sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 3))sql",
    R"sql( AND (予備3 = 3 OR 予備3 = 4))sql",
    R"sql( AND (予備3 = 2 OR 予備3 = 3))sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 3 OR 予備3 = 4))sql",
    R"sql( AND (予備3 = 1 OR 予備3 = 2 OR 予備3 = 3))sql",
    R"sql( AND (予備3 = 2 OR 予備3 = 3 OR 予備3 = 4))sql",
};

inline constexpr std::string_view kKindClauses[] = {
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=2))sql",
    R"sql( AND (予備2=4 or 予備2=2))sql",
    R"sql( AND (予備2<=1 or 予備2=4 or IsNull(予備2) or 予備2=2))sql",
    R"sql( AND (予備2=3 or 予備2=2))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=2))sql",
    R"sql( AND (予備2=3 or 予備2=4 or 予備2=2))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=2))sql",
    R"sql( AND (予備2=5) or 予備2=2)sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=5 or 予備2=2))sql",
    R"sql( AND (予備2=4 or 予備2=5 or 予備2=2))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=4 or 予備2=5 or 予備2=2))sql",
    R"sql( AND (予備2=3 or 予備2=5 or 予備2=2))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=5 or 予備2=2))sql",
    R"sql( AND (予備2=3 or 予備2=4 or 予備2=5 or 予備2=2))sql",
};

inline constexpr std::string_view kShapeKindClauses[] = {
    R"sql( AND (予備2<=1 or 予備2 is NULL) AND 予備2<>2 )sql",
    R"sql( AND 予備2=4 AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=4) AND 予備2<>2  )sql",
    R"sql( AND 予備2=3 AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=3) AND 予備2<>2 )sql",
    R"sql( AND (予備2=4 or 予備2=3) AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=3 or 予備2=4) AND 予備2<>2 )sql",
    R"sql( AND 予備2=5 AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND (予備2=4 or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=4 or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND (予備2=3 or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND (予備2<=1 or 予備2 is NULL or 予備2=3 or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND (予備2=3 or 予備2=4 or 予備2=5) AND 予備2<>2 )sql",
    R"sql( AND 予備2<>2 )sql",
    R"sql(AND ((予備2<=1 or IsNull(予備2)) AND 予備2<>2) )sql",
    R"sql(AND 予備2=4 AND 予備2<>2 )sql",
    R"sql(AND ((予備2<=1 or 予備2=4 or IsNull(予備2)) AND 予備2<>2) )sql",
};

inline constexpr std::string_view kFloorKindClauses[] = {
    R"sql( AND 予備2=2)sql",
    R"sql( AND 予備2=5)sql",
    R"sql( AND (予備2<=1 or IsNull(予備2)))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=5))sql",
    R"sql( AND 予備2=4)sql",
    R"sql( AND (予備2=4 or 予備2=5))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=4))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=4 or 予備2=5))sql",
    R"sql( AND 予備2=3)sql",
    R"sql( AND (予備2=3 or 予備2=5))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=5))sql",
    R"sql( AND (予備2=3 or 予備2=4))sql",
    R"sql( AND (予備2=3 or 予備2=4 or 予備2=5))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4))sql",
    R"sql( AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=5))sql",
};

inline constexpr std::string_view kHoopClauses[] = {
    R"sql( AND (形状No=87))sql",
    R"sql( AND 形状No=87 )sql",
    R"sql( AND 形状No=87)sql",
    R"sql( AND 形状No<>87 )sql",
    R"sql( AND 形状No = 87 AND Not IsNull(形状No) )sql",
};

inline constexpr std::string_view kAnchorClauses[] = {
    R"sql( AND (形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR (形状No Between 164 And 169) OR (形状No Between 175 And 176)))sql",
    R"sql( AND (IsNull(形状No) OR 形状No=0 or 形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR (形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR 形状No >=177))sql",
    R"sql( AND (IsNull(形状No) OR 形状No=0 or  形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR (形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR 形状No >=177))sql",
    R"sql( AND (IsNull(形状No) OR 形状No=0 or  形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR (形状No Between 164 And 169) OR (形状No Between 175 And 176)))sql",
    R"sql( AND (形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR (形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR 形状No >=177))sql",
};

inline constexpr std::string_view kShapeRanges[] = {
    R"sql( AND 形状No Between 1 AND 200)sql",
    R"sql( AND (形状No Between 1 AND 86 OR 形状No Between 88 AND 200))sql",
    R"sql( AND 形状No =87)sql",
    R"sql( AND ((形状No Between 1 AND 86) OR (形状No Between 88 AND 200)))sql",
};

/// They open with two parentheses, which the closing parts shut.
inline constexpr std::string_view kFloorRanges[] = {
    R"sql(WHERE (((階 = 76))sql",
    R"sql(WHERE (((階 >= 76 and 階 <= 3) )sql",
    R"sql(WHERE (((階 = 77))sql",
    R"sql(WHERE (((階 >= 77 and 階 <= 3) )sql",
    R"sql(WHERE (((階 = 78))sql",
    R"sql(WHERE (((階 >= -2 AND 階 <= 3 AND 階<>0) )sql",
    R"sql(WHERE (((階 >= -2 AND 階 <= 3) )sql",
    R"sql(WHERE  ((階=0 )sql",
    R"sql(WHERE (((階 >= -2 AND 階 <= 3) OR 階=0 )sql",
};

inline constexpr std::string_view kFloorSpecials[] = {
    R"sql(OR 階 = 76 )sql",
    R"sql(OR 階 = 77 )sql",
    R"sql(OR (階 = 76 OR 階 = 77) )sql",
    R"sql(OR 階 = 78 )sql",
    R"sql(OR (階 = 76 OR 階 = 78) )sql",
    R"sql(OR (階 = 77 OR 階 = 78) )sql",
    R"sql(OR (階 = 76 OR 階 = 77 OR 階 = 78) )sql",
};

inline constexpr std::string_view kPartRanges[] = {
    R"sql(WHERE (階 = 76))sql",
    R"sql(WHERE (階 = 77))sql",
    R"sql(WHERE (階 = 78))sql",
    R"sql(WHERE (階=0 OR 階 >= 1 AND 階 <= 3) )sql",
    R"sql(WHERE (階 >= 1 AND 階 <= 3 AND 階<>0) )sql",
};

inline constexpr std::string_view kPartRangesBeforeSpecials[] = {
    R"sql(WHERE (階=0 OR (階 >= 1 AND 階 <= 3) )sql",
    R"sql(WHERE ((階 >= 1 AND 階 <= 3 AND 階<>0) )sql",
};

inline constexpr std::string_view kPartSpecials[] = {
    R"sql(OR (階 = 76 OR 階 = 77 OR 階 = 78)) )sql",
    R"sql(OR (階 = 76 OR 階 = 77)) )sql",
    R"sql(OR (階 = 76 OR 階 = 78)) )sql",
    R"sql(OR (階 = 77 OR 階 = 78)) )sql",
    R"sql(OR 階 = 76) )sql",
    R"sql(OR 階 = 77) )sql",
    R"sql(OR 階 = 78) )sql",
};

inline constexpr std::string_view kBulkHead =
    R"sql(SELECT * FROM 加工テーブル WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL)sql";
inline constexpr std::string_view kPageHead =
    R"sql(SELECT * FROM 加工テーブル WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL AND 行No Between 1 AND 400 )sql";
inline constexpr std::string_view kNamesHead =
    R"sql(SELECT * FROM 加工テーブル WHERE ((登録名=1) OR (登録名=2)) AND (太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL )sql";
inline constexpr std::string_view kShapeMainHead =
    R"sql(SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺, SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS 合計定着板数,予備5 FROM 加工テーブル  WHERE ( 太さ > 0 AND 合計 > 0 AND Not IsNull(形状No) AND 伸定尺 is not NULL )sql";
inline constexpr std::string_view kShapeMainTail =
    R"sql( GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5,伸定尺 )sql";
inline constexpr std::string_view kShapeCutHead =
    R"sql(SELECT 太さ,圧接太さ,SUM(切断) AS 合計切断数 FROM 加工テーブル WHERE ( 太さ > 0 AND 合計 > 0 AND Not IsNull(形状No) AND 伸定尺 is not NULL )sql";
inline constexpr std::string_view kShapeCutTail =
    R"sql( AND 部位=5 GROUP BY 太さ,圧接太さ )sql";
inline constexpr std::string_view kShapeCutTailOfPart2 =
    R"sql( AND 部位=2  GROUP BY 太さ,圧接太さ )sql";
inline constexpr std::string_view kShapeProbeHead =
    R"sql(SELECT 形状No FROM 加工テーブル WHERE 形状No Between 1 And 200)sql";
inline constexpr std::string_view kUlbonHead =
    R"sql(SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS 合計定着板数,SUM(切断) AS 合計切断数, 予備5 FROM 加工テーブル WHERE ( 太さ > 0 AND 合計 > 0 AND 予備2 = 2 AND Not IsNull(形状No)) )sql";
inline constexpr std::string_view kUlbonTail =
    R"sql( GROUP BY 太さ,圧接太さ,形状No,伸切寸,予備5 )sql";
inline constexpr std::string_view kPageShapeUlbonHead =
    R"sql(SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺, SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接, SUM(ネジ数) AS 合計ネジ数,SUM(定着板数) AS 合計定着板数,SUM(切断) AS 合計切断数, 予備5 FROM 加工テーブル WHERE ( 太さ > 0 AND 合計 > 0 AND (予備2 = 2 ) AND Not IsNull(形状No)) AND 本数>0 AND 行No Between 1AND 400 )sql";
inline constexpr std::string_view kPageShapeMainHead =
    R"sql(SELECT 太さ,圧接太さ,形状No,伸切寸,SUM(合計) As 合計本数,伸定尺,SUM(伸総計) As 合計伸総計,SUM(圧接) As 合計圧接,SUM(ネジ数) As 合計ネジ数,SUM(定着板数) As 合計定着板数,予備5 FROM 加工テーブル WHERE (太さ > 0 AND 合計 >0 AND Not IsNull(形状NO) AND 伸定尺 is not NULL) AND 行No Between 1 AND 400 )sql";
inline constexpr std::string_view kPageShapeCutHead =
    R"sql(SELECT 太さ,圧接太さ,SUM(切断) AS 合計切断数 FROM 加工テーブル WHERE (太さ > 0 AND 合計 >0 AND Not IsNull(形状NO) AND 伸定尺 is not NULL) AND 行No Between 1 AND 400 )sql";
inline constexpr std::string_view kFloorHead =
    R"sql(SELECT * FROM 加工テーブル )sql";
inline constexpr std::string_view kFloorClose =
    R"sql() AND (太さ Is Not Null AND 伸定尺 Is Not Null AND 本数 Is Not Null))sql";
inline constexpr std::string_view kPartClose =
    R"sql(AND (太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL))sql";
// clang-format on

}  // namespace rbt::test
